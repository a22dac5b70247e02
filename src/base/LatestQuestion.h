#pragma once

#include "base/GuardedPost.h"

#include <memory>
#include <utility>

/// A question that is put to a worker again and again, while only the answer to the last one counts: what it was about may
/// have changed meanwhile, or nobody wants to know any more. Belongs to whoever asks, and goes with it. Main thread.
class LatestQuestion
{
public:
    /// What the worker takes along.
    class Token
    {
    public:
        /// Another was asked since, or this one was dropped: the worker may stop. Any thread.
        bool isUnwanted() const { return question_.expired(); }

        /// Posts `block`, which takes the owner and the answer with it. It runs unless the question has become unwanted by
        /// then, which may also be while it waits for its turn. Any thread.
        template<typename Owner, typename Block>
        void answer(MainQueue &main, QPointer<Owner> owner, Block block) const
        {
            guarded::post(main, std::move(owner), [token = *this, block = std::move(block)](Owner &asker) {
                if (!token.isUnwanted())
                    block(asker);
            });
        }

    private:
        friend class LatestQuestion;

        explicit Token(std::weak_ptr<const int> question)
            : question_(std::move(question))
        {
        }

        // Never locked: a worker that held the question could not be told that it is unwanted.
        std::weak_ptr<const int> question_;
    };

    /// Puts a question. The one before is unwanted from now on.
    Token ask()
    {
        question_ = std::make_shared<const int>();
        return Token(question_);
    }

    /// The last question is unwanted from now on.
    void drop() { question_.reset(); }

private:
    std::shared_ptr<const int> question_;
};

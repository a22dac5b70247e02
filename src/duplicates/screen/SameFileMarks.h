#pragma once

#include "base/LatestQuestion.h"
#include "duplicates/DuplicateFileGroup.h"
#include "duplicates/SameFile.h"
#include "platform/Platform.h"

#include <QHash>
#include <QObject>

#include <vector>

/// Which groups have one file by two ways. The disk is asked off the main thread, once the groups are on view; what a
/// screen shows never waits for it. One question an entry, which for 50,000 groups is less than a second's work. Main
/// thread.
class SameFileMarks final : public QObject
{
    Q_OBJECT

public:
    explicit SameFileMarks(const Platform &platform);

    /// Asks about these groups. What is known of others is forgotten when the answer comes; an answer that is still under
    /// way is dropped.
    void lookUp(const std::vector<DuplicateFileGroup> &groups);

    /// The same after groups have lost files, or have gone. Only groups that had a mark and lost a file can differ: their
    /// marks go at once and are asked about again, all others stay as they are.
    void lookUpShrunk(const std::vector<DuplicateFileGroup> &groups);

    /// `none` as long as it is not known.
    samefile::Kind kindOf(const QUuid &group) const { return marks_.value(group).kind; }

signals:
    void changed();

private:
    struct Mark
    {
        samefile::Kind kind = samefile::Kind::none;
        size_t files = 0; ///< of the group when it was asked about; none while it is

        friend bool operator==(const Mark &left, const Mark &right)
        {
            return left.kind == right.kind && left.files == right.files;
        }
    };
    /// Without groups of which it is known that their files are all files of their own.
    using Marks = QHash<QUuid, Mark>;
    struct Snapshot;

    void ask(Snapshot snapshot, const Marks &kept);
    void take(const Marks &marks);

    const Platform &platform_;
    Marks marks_;
    bool knowsAll_ = false; // the last question about all groups is answered
    LatestQuestion question_;
};

#pragma once

#include <QString>

#include <span>
#include <vector>

/// Lists of paths, one behind the other in a single vector. A snapshot of some ten thousand lists of a few paths each is taken
/// on the main thread, so it shares the texts and makes room once, not for each list.
class PathLists
{
public:
    void reserve(size_t lists, size_t paths)
    {
        ends_.reserve(lists);
        paths_.reserve(paths);
    }

    /// At the end of the list that is being made.
    void append(const QString &path) { paths_.push_back(path); }
    void endList() { ends_.push_back(paths_.size()); }

    size_t size() const { return ends_.size(); }
    std::span<const QString> operator[](size_t list) const
    {
        const size_t begin = list == 0 ? 0 : ends_[list - 1];
        return std::span(paths_).subspan(begin, ends_[list] - begin);
    }

private:
    std::vector<QString> paths_;
    std::vector<size_t> ends_; // of each list in `paths_`
};

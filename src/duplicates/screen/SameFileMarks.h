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

    /// Asks about these groups, which are copied. What is known of others is forgotten when the answer comes; an answer
    /// that is still under way is dropped.
    void lookUp(const std::vector<DuplicateFileGroup> &groups);

    /// `none` as long as it is not known.
    samefile::Kind kindOf(const QUuid &group) const { return kinds_.value(group, samefile::Kind::none); }

signals:
    void changed();

private:
    using Kinds = QHash<QUuid, samefile::Kind>; // without those of none

    void take(const Kinds &kinds);

    const Platform &platform_;
    Kinds kinds_;
    LatestQuestion question_;
};

#pragma once

#include "base/GroupRows.h"
#include "cleanup/CleanupCategory.h"
#include "cleanup/PreviewFile.h"

#include <QString>

#include <vector>

class CleanupViewModel;

/// What the rows of Smart Cleanup's list say: categories, and below one that is open what there is to say of it and its files.
/// The files come in portions, so that a preview of thousands shows a few at first. Main thread only.
class CleanupRows final : public GroupRows
{
    Q_OBJECT

public:
    enum class Kind {
        category,
        note,   ///< what such a category may hold, and of one that needs a review the mark that it had one
        status, ///< in the place of files: they are loading, or there are none
        guide,  ///< ahead of the files: what they are for, and how many are picked
        file,
        end, ///< behind the files: how many are shown, and what a cleaning would take
    };

    enum Role {
        kindRole = firstOwnRole, ///< as QML compares it: "category", "note", …
        titleRole,
        detailRole,         ///< a second line; empty for none
        trailingRole,       ///< at the right: sizes, and of the guide how many are picked
        trailingDetailRole, ///< category: how many files
        symbolRole,         ///< category
        badgeRole,          ///< category: whether it needs a review
        safeRole,           ///< category: it needs none
        noteRole,           ///< category: what its badge means
        tickedRole,         ///< category, file: it is to go; note: it has been reviewed
        lockedRole,         ///< category: its tick can't be used
        expandedRole,       ///< category: its preview is open
        previewTipRole,     ///< category: what its chevron does
        reviewableRole,     ///< note: it has the mark
        moreRole,           ///< end: the command for some more files; empty where all are shown
        allRole,            ///< end: the one for all of them
        spokenRole,         ///< all but the title, for who does not see it
    };
    Q_ENUM(Role)

    /// Files of a preview that are shown at first, and that one press adds.
    static constexpr int firstFiles = 50;
    static constexpr int moreFiles = 100;

    /// `service` outlives the model, which shows nothing of it until `showAll`. `home` is written as a tilde.
    CleanupRows(const CleanupViewModel &service, QString home, QObject *parent = nullptr);

    void showAll();
    /// What stands below each category has changed, or is no more.
    void resizeAll();
    /// The same of one category; nothing where there is none of that id.
    void resizeCategory(const QString &id);

    // Of a row; null where it is of another kind or there is none.

    const CleanupCategory *category(int row) const; ///< of a row of any kind, its category
    const PreviewFile *file(int row) const;
    bool is(Kind kind, int row) const;

    bool isPicked(const CleanupCategory &category, const QString &path) const;
    int shownFiles(const CleanupCategory &category) const; ///< of an open preview

    QHash<int, QByteArray> roleNames() const override;

private:
    using Files = std::vector<PreviewFile>;

    Kind kindOf(size_t group, size_t member) const;
    const Files *files(const CleanupCategory &category) const; ///< null while they are not loaded
    const CleanupCategory &at(size_t group) const;
    const PreviewFile &fileAt(size_t group, size_t member) const;
    QString guideText(const CleanupCategory &category) const;
    QString shownText(const CleanupCategory &category) const;
    QString modeText(const CleanupCategory &category) const;
    QString moreText(const CleanupCategory &category) const;
    QString allText(const CleanupCategory &category) const;
    QString statusText(const CleanupCategory &category) const;
    QVariant noteData(const CleanupCategory &category, int role) const;
    QVariant guideData(const CleanupCategory &category, int role) const;
    QVariant fileData(const CleanupCategory &category, const PreviewFile &file, int role) const;
    QVariant endData(const CleanupCategory &category, int role) const;

    size_t groupCount() const override;
    size_t memberCount(size_t group) const override;
    QUuid groupId(size_t) const override { return {}; }
    QUuid memberId(size_t, size_t) const override { return {}; }
    QVariant headData(size_t group, int role) const override;
    QVariant memberData(size_t group, size_t member, int role) const override;

    const CleanupViewModel &service_;
    const QString home_;
};

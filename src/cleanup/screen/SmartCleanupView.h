#pragma once

#include "activity/FDABanner.h"
#include "cleanup/CleanupViewModel.h"
#include "cleanup/screen/CleanupRows.h"
#include "cleanup/screen/CleanupTexts.h"
#include "common/AgePillView.h"
#include "common/Appearing.h"
#include "common/Confirmation.h"

#include <QObject>
#include <QStringList>

#include <memory>

/// Smart Cleanup's screen: the categories that were found, with a preview of their single files, the choice of what goes,
/// and the confirmed cleaning. All that was found and chosen lives in the service and is there again when the screen is.
/// Made by std::make_shared, since a cleaning begins in a later turn of the main loop. Main thread.
class SmartCleanupView final : public QObject,
                               public Appearing,
                               public std::enable_shared_from_this<SmartCleanupView>
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString symbol READ symbol CONSTANT)
    Q_PROPERTY(CleanupTexts texts READ texts CONSTANT)
    Q_PROPERTY(FDABanner *banner READ banner CONSTANT)
    Q_PROPERTY(AgePillView *pill READ pill CONSTANT)
    Q_PROPERTY(GroupRows *rows READ rows CONSTANT)
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY stateChanged)
    Q_PROPERTY(bool isCleaning READ isCleaning NOTIFY stateChanged)
    Q_PROPERTY(bool hasList READ hasList NOTIFY stateChanged)
    Q_PROPERTY(bool isSearching READ isSearching NOTIFY stateChanged)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY stateChanged)
    Q_PROPERTY(QString emptyDetail READ emptyDetail NOTIFY stateChanged)
    Q_PROPERTY(bool canScan READ canScan NOTIFY stateChanged)
    Q_PROPERTY(bool canStop READ canStop NOTIFY stateChanged)
    Q_PROPERTY(bool canChoose READ canChoose NOTIFY stateChanged)
    Q_PROPERTY(bool canSelect READ canSelect NOTIFY stateChanged)
    Q_PROPERTY(QString stopText READ stopText NOTIFY stateChanged)
    Q_PROPERTY(QList<QString> stopLabels READ stopLabels CONSTANT)
    Q_PROPERTY(QString categoriesFigure READ categoriesFigure NOTIFY choiceChanged)
    Q_PROPERTY(QString totalFigure READ totalFigure NOTIFY choiceChanged)
    Q_PROPERTY(QString selectedFigure READ selectedFigure NOTIFY choiceChanged)
    Q_PROPERTY(bool hasSelected READ hasSelected NOTIFY choiceChanged)
    Q_PROPERTY(bool canClean READ canClean NOTIFY choiceChanged)
    Q_PROPERTY(QString footText READ footText NOTIFY choiceChanged)
    Q_PROPERTY(QString cleanText READ cleanText NOTIFY choiceChanged)
    Q_PROPERTY(QString confirmText READ confirmText NOTIFY choiceChanged)
    Q_PROPERTY(Confirmation *confirmation READ confirmation CONSTANT)

public:
    SmartCleanupView(const Platform &platform, CleanupViewModel &service, FileSystemService &fileSystem,
                     FDAService &access);

    QString title() const { return QStringLiteral("Smart Cleanup"); }
    QString symbol() const { return QStringLiteral("trash"); }
    CleanupTexts texts() const { return {}; }
    FDABanner *banner() { return &banner_; }
    AgePillView *pill() { return &pill_; }
    /// Rows: see CleanupRows.
    GroupRows *rows() { return &rows_; }

    bool isScanning() const { return service_.isScanning(); }
    bool isCleaning() const { return service_.isCleaning(); }
    bool hasList() const { return !service_.categories().empty(); }
    /// A scan that has nothing to show yet, be it one that begins as soon as the screen has been seen.
    bool isSearching() const { return !hasList() && (isScanning() || willScan_); }
    QString emptyText() const; ///< what stands in the place of the list; empty while that or a scan does
    QString emptyDetail() const;

    bool canScan() const { return !isScanning() && !isCleaning(); }
    bool canStop() const { return isScanning() && !service_.cancelRequested(); }
    bool canChoose() const { return !isCleaning(); } ///< ticks, files and marks may change
    bool canSelect() const { return hasList() && canChoose(); }
    QString stopText() const;
    QStringList stopLabels() const; ///< all that it may read, so that its button keeps one width

    QString categoriesFigure() const;
    QString totalFigure() const;
    QString selectedFigure() const;
    bool hasSelected() const { return selected_.categories > 0; }
    /// Not during a scan either: it has begun by forgetting which files were picked, and ends with another list.
    bool canClean() const { return hasSelected() && !isCleaning() && !isScanning(); }
    QString footText() const;
    QString cleanText() const;
    QString confirmText() const; ///< of the button that confirms

    /// The question before a cleaning. It goes by itself when a scan takes away what it asks about, and follows a preview
    /// that arrives meanwhile.
    Confirmation *confirmation() { return &confirmation_; }

    void appear() override;

    Q_INVOKABLE void rescan();
    Q_INVOKABLE void stop();
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void selectNone();
    /// Puts the question. The cleaning that it leads to begins in a later turn of the main loop.
    Q_INVOKABLE void askToClean();

    // Of a row of the list; nothing on a row of another kind.
    Q_INVOKABLE void activate(int row);   ///< a click: opens or closes a category, picks a file or drops it
    Q_INVOKABLE void open(int row);       ///< Return: the same, and the first command of any other row
    Q_INVOKABLE void toggle(int row);     ///< Space: the same, but ticks a category
    Q_INVOKABLE void toggleTick(int row); ///< of a category
    Q_INVOKABLE void togglePreview(int row);  ///< of a category
    Q_INVOKABLE void toggleReviewed(int row); ///< of a note
    Q_INVOKABLE void toggleFile(int row);
    Q_INVOKABLE void selectAllFiles(int row);
    Q_INVOKABLE void selectNoFiles(int row);
    Q_INVOKABLE void showMore(int row);
    Q_INVOKABLE void showAllFiles(int row);
    Q_INVOKABLE void revealCategory(int row); ///< shows its first place
    Q_INVOKABLE void openFile(int row);
    Q_INVOKABLE void revealFile(int row);
    Q_INVOKABLE void copyPath(int row);
    Q_INVOKABLE QString
    menuKind(int row) const; ///< the row's kind, as the rows tell it; empty where it has no menu
    Q_INVOKABLE QString toggleText(int row) const;  ///< how the menu calls `toggleFile`
    Q_INVOKABLE QString previewText(int row) const; ///< how it calls `togglePreview`
    Q_INVOKABLE QString moreText(int row) const;    ///< and `showMore`; empty where all are shown
    Q_INVOKABLE QString allText(int row) const;     ///< and `showAllFiles`

signals:
    void stateChanged();
    void choiceChanged();
    void rowsWillChange(); ///< the list is about to show others, from its top

private:
    struct Selected
    {
        size_t categories = 0;
        qint64 items = 0; // single ones that are to go
        qint64 size = 0;  // bytes
    };

    void observeService();
    void takeState();
    void takeChoice();
    void showCategories();
    void runClean();
    QString text(int row, CleanupRows::Role role) const;

    const Platform &platform_;
    CleanupViewModel &service_;
    FileSystemService &fileSystem_;
    bool willScan_ = false; // as soon as the screen has been seen
    Selected selected_;     // taken at each change, as it is read by many and takes a walk over the files
    qint64 total_ = 0;
    Confirmation confirmation_;
    FDABanner banner_;
    AgePillView pill_;
    CleanupRows rows_;
};

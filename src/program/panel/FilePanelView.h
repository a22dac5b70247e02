#pragma once

#include "base/LatestQuestion.h"
#include "base/RecordListModel.h"
#include "common/Confirmation.h"
#include "platform/Platform.h"
#include "program/panel/FilePanelTexts.h"
#include "program/panel/FolderListing.h"
#include "program/panel/PanelDeed.h"
#include "program/panel/PanelQuestions.h"
#include "program/panel/PlaceRows.h"
#include "program/panel/SaveName.h"

#include <QObject>

#include <functional>
#include <optional>
#include <vector>

/// The program's own panel for a folder or for saving, for a desktop that offers none. It gives a folder that is selected in
/// the one on view, else that one itself; or the path of a file under the name that stands in its field. The disk is asked
/// off the main thread alone, so a mount that does not answer holds up nothing but its own list. Main thread.
class FilePanelView final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(FilePanelTexts texts READ texts CONSTANT)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString symbol READ symbol CONSTANT)
    Q_PROPERTY(bool isForSaving READ isForSaving CONSTANT)
    Q_PROPERTY(QString acceptLabel READ acceptLabel CONSTANT)
    Q_PROPERTY(QAbstractItemModel *places READ places CONSTANT)
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT)
    Q_PROPERTY(QStringList crumbs READ crumbs NOTIFY folderChanged)
    Q_PROPERTY(bool canGoUp READ canGoUp NOTIFY folderChanged)
    Q_PROPERTY(bool showsHidden READ showsHidden WRITE setShowsHidden NOTIFY changed)
    Q_PROPERTY(bool isSlow READ isSlow NOTIFY changed)
    Q_PROPERTY(QString emptySymbol READ emptySymbol NOTIFY changed)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed)
    Q_PROPERTY(QString cutShortText READ cutShortText NOTIFY changed)
    Q_PROPERTY(QString fileName READ fileName WRITE setFileName NOTIFY fileNameChanged)
    Q_PROPERTY(int stemLength READ stemLength NOTIFY fileNameChanged)
    Q_PROPERTY(QString resultText READ resultText NOTIFY changed)
    Q_PROPERTY(QString failureText READ failureText NOTIFY changed)
    Q_PROPERTY(bool canAccept READ canAccept NOTIFY changed)
    Q_PROPERTY(bool canMakeFolder READ canMakeFolder NOTIFY changed)
    Q_PROPERTY(bool asksForFolderName READ asksForFolderName NOTIFY changed)
    Q_PROPERTY(Confirmation *replaceQuestion READ replaceQuestion CONSTANT)

public:
    /// What is asked for.
    struct Request
    {
        QString title;
        QString start; ///< the folder to begin with; the home folder where it is empty
        bool showsHidden = false;
        std::optional<QString> suggestedName; ///< of the file to be saved; none where a folder is asked for
        QString extension = {}; ///< that this file is given where its name has another; empty for any
    };

    /// `chosen` gets the path, or none when the user cancels, once at most; it may delete this object in a later turn of the
    /// main loop. `platform` outlives it.
    FilePanelView(const Platform &platform, Request request, Workspace::PathChosen chosen);

    /// Nobody wants its answer any more.
    void withdraw() { chosen_ = nullptr; }

    FilePanelTexts texts() const { return {}; }
    QString title() const;
    QString symbol() const;
    bool isForSaving() const { return request_.suggestedName.has_value(); }
    QString acceptLabel() const;
    /// Rows: name, symbol, isHere (the folder on view), hereText.
    QAbstractItemModel *places() { return &places_.model(); }
    /// Rows: name, symbol, isFolder.
    QAbstractItemModel *rows() { return &rows_; }
    const QString &folder() const { return folder_; }
    /// The folders on the way to the one on view, from the root on, which is its own name.
    QStringList crumbs() const;
    bool canGoUp() const { return folder_ != QStringLiteral("/"); }
    bool showsHidden() const { return wish_.showsHidden; }
    void setShowsHidden(bool showsHidden);
    bool isSlow() const
    {
        return isSlow_;
    } ///< the folder has not answered for so long that this should be said
    QString emptySymbol() const;
    QString emptyText() const; ///< what stands in the place of rows; empty where there are some, or none yet
    QString cutShortText() const; ///< stands below rows that are not all; else empty
    const QString &fileName() const { return name_.text(); }
    void setFileName(const QString &name);
    int stemLength() const { return name_.stemLength(); }
    QString resultText() const; ///< the path that would be given, or that the disk has yet to answer about it
    const QString &failureText() const { return failureText_; }
    bool canAccept() const;
    bool canMakeFolder() const { return isListed_; }
    bool asksForFolderName() const { return asksForFolderName_; }
    Confirmation *replaceQuestion() { return &replaceQuestion_; }

    Q_INVOKABLE void openPlace(int row);
    Q_INVOKABLE void openCrumb(int index);
    Q_INVOKABLE void goUp();
    /// The row that the keyboard is on or that was clicked; -1 for none.
    Q_INVOKABLE void select(int row);
    /// Goes into a folder; a file is taken for what is to be saved.
    Q_INVOKABLE void openRow(int row);
    /// The row was pressed with the pointer, which selects it, even where it has been.
    Q_INVOKABLE void press(int row);
    /// Two clicks open a row, unless another one came under the pointer between them.
    Q_INVOKABLE void openPressedTwice(int row);
    /// What is typed goes on with what was typed just before. Gives the row whose name begins so, else -1.
    int find(const QString &typed);
    /// A key that was pressed over the rows and is none of a list's own: Backspace and Alt with Up go to the folder above, a
    /// letter goes to the row that begins with it. False for any other.
    Q_INVOKABLE bool takeKey(int key, int modifiers, const QString &text);
    Q_INVOKABLE void accept();
    Q_INVOKABLE void cancel();
    Q_INVOKABLE void askForFolderName();
    /// Makes a folder in the one on view and goes into it.
    Q_INVOKABLE void makeFolder(const QString &name);
    Q_INVOKABLE void cancelFolderName();

signals:
    void changed();
    void folderChanged();
    void fileNameChanged();
    /// Another folder's rows stand there now.
    void listed();
    /// More rows came between those that stood there; what is selected is in that row now.
    void kept(int row);
    /// What was typed leads to that row.
    void found(int row);

private:
    void open(const QString &folder);
    void list();
    void take(const std::optional<folderlisting::Listing> &listing);
    void takeRows(const std::vector<folderlisting::Entry> &entries);
    QString result() const;
    void offerName(const QString &name);
    void offerSelected();
    void rename(const std::function<void()> &change);
    QString savePath() const;
    void save();
    void takeLook(const QString &path, bool meansFolder, panelquestions::Found found);
    void fail(const QString &text);
    void finish(const std::optional<QString> &path);

    const Platform &platform_;
    const Request request_;
    Workspace::PathChosen chosen_;
    PlaceRows places_;
    RecordListModel<folderlisting::Entry> rows_;
    QString folder_;
    folderlisting::Wish wish_;
    bool isListed_ = false; // its rows are there
    bool hasFailed_ = false;
    bool isCutShort_ = false;
    bool isSlow_ = false;
    bool isTakingRows_ = false; // what the list makes of that is not the user's choice
    int selected_ = -1;
    QString pressed_; // path of the row that was pressed last
    QString pressedBefore_;
    SaveName name_;
    QString failureText_;
    bool asksForFolderName_ = false;
    QString typed_;
    double lastTyped_ = 0; // steady seconds
    QString replacedPath_;
    Confirmation replaceQuestion_;
    LatestQuestion listing_;
    PanelDeed deed_;
};

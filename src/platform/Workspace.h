#pragma once

#include <QString>

#include <functional>
#include <optional>

/// The desktop around the program: its file viewer, its default applications, its terminal, its panels and its
/// clipboard. Main thread only. Everything returns at once and nothing reports a failure: what can't be done
/// does not happen.
class Workspace
{
public:
    /// What the folder panel shows. Folders only, a single one.
    struct FolderRequest
    {
        QString message;          ///< what the folder is for
        QString start;            ///< the folder to begin with; empty for the desktop's own choice
        bool showsHidden = false; ///< hidden folders too, and packages as the folders that they are
    };

    /// What a file that is saved may be.
    enum class FileType { any, commaSeparatedText };

    /// What the panel for saving shows.
    struct SaveRequest
    {
        QString message;                   ///< what is saved; the panel's title
        QString suggestedName;             ///< the file's name to begin with, without a folder
        QString start;                     ///< the folder to begin with; empty for the desktop's own choice
        FileType fileType = FileType::any; ///< what the panel offers to save it as
    };

    /// Takes what the user chose in a panel, or none where the user cancelled.
    using PathChosen = std::function<void(const std::optional<QString> &path)>;

    Workspace() = default;
    Workspace(const Workspace &) = delete;
    Workspace &operator=(const Workspace &) = delete;
    virtual ~Workspace() = default;

    /// Opens a file or folder with the application that the user has chosen for its kind.
    virtual void open(const QString &path) = 0;

    /// Opens an address ("mailto:…", "https:…"), percent-encoded.
    virtual void openAddress(const QByteArray &address) = 0;

    /// Opens a page of the system's settings, named by the address that it has on a Mac; another system shows its own
    /// page of that purpose.
    virtual void openSettingsPage(const QByteArray &address) = 0;

    /// Shows an entry selected in its folder.
    virtual void reveal(const QString &path) = 0;

    /// Shows the content of a folder.
    virtual void showFolder(const QString &path) = 0;

    /// Shows a preview of an entry in a small window of the desktop's; where it has none, opens the entry.
    virtual void quickLook(const QString &path) = 0;

    /// Opens a terminal in a folder.
    virtual void openTerminal(const QString &folder) = 0;

    /// Asks for a folder. `chosen` gets it in a later turn of the main loop, or none when the user cancels; it
    /// may never run when another panel takes this one's place.
    virtual void chooseFolder(const FolderRequest &request, PathChosen chosen) = 0;

    /// Asks where to save a file, which may exist already: the user has then agreed to its being replaced. Answers like
    /// `chooseFolder`.
    virtual void chooseSavePath(const SaveRequest &request, PathChosen chosen) = 0;

    /// Puts a text on the clipboard in place of what was there. Bytes that are not UTF-8 become U+FFFD.
    virtual void copyText(const QString &text) = 0;
};

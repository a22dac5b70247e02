#include "program/panel/PanelQuestions.h"

#include "base/Error.h"
#include "base/Files.h"
#include "base/Paths.h"

namespace panelquestions {

Found lookAt(const QString &path)
{
    if (files::isDirectory(path))
        return Found::folder;
    if (files::exists(path))
        return Found::file;
    return files::isDirectory(paths::parent(path)) ? Found::nothing : Found::noFolder;
}

QString make(const QString &path)
{
    try {
        files::makeDirectory(path);
        return {};
    } catch (const Error &error) {
        return error.description;
    }
}

} // namespace panelquestions

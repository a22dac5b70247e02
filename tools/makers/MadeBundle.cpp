#include "makers/MadeBundle.h"

#include "base/Paths.h"
#include "makers/MadeFiles.h"
#include "makers/PropertyLists.h"

void MadeBundle::make() const
{
    const QString contents = paths::join(path, QStringLiteral("Contents"));
    madefiles::makeFolder(contents);
    if (!description.isEmpty()) {
        const QByteArray list =
            form == Form::binary ? propertylists::binary(description) : propertylists::xml(description);
        madefiles::make(paths::join(contents, QStringLiteral("Info.plist")), list, 0, days);
    }
    if (size > 0) {
        const QString program = paths::join(contents, QStringLiteral("MacOS/") + paths::stem(path));
        madefiles::make(program, "program of " + paths::toBytes(path), size, days);
    }
    madefiles::setAge(path, days);
}

#include "platform/Locations.h"

#include "base/Paths.h"

QStringList Locations::placesOfStorageRow(QStringView name) const
{
    for (const StorageRow &row : storageRows) {
        if (row.name == name)
            return row.places;
    }
    return {paths::join(home, name.toString())};
}

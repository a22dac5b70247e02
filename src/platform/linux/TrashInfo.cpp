#include "platform/linux/TrashInfo.h"

namespace trashinfo {

QByteArray text(const QByteArray &path, std::time_t deleted)
{
    std::tm local = {};
    localtime_r(&deleted, &local);
    char date[sizeof "yyyyyyyyyyy-mm-ddThh:mm:ss"] = {};
    std::strftime(date, sizeof date, "%Y-%m-%dT%H:%M:%S", &local);
    return "[Trash Info]\nPath=" + path.toPercentEncoding("/") + "\nDeletionDate=" + date + "\n";
}

} // namespace trashinfo

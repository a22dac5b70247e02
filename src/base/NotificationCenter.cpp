#include "base/NotificationCenter.h"

void NotificationCenter::post(const QString &name, const QVariant &object)
{
    emit posted(name, object);
}

void NotificationCenter::observe(const QString &name, QObject *owner, Handler handler)
{
    connect(this, &NotificationCenter::posted, owner,
            [name, handler = std::move(handler)](const QString &postedName, const QVariant &object) {
                if (postedName == name)
                    handler(object);
            });
}

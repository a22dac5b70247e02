#pragma once

#include <QObject>
#include <QQuickItem>
#include <QString>
#include <QStringList>
#include <QTemporaryFile>
#include <QtQml/qqmlregistration.h>

/// The states in which the gallery shows each control, and what it writes on them.
class GalleryPoses final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QStringList all READ all CONSTANT)
    Q_PROPERTY(QStringList still READ still CONSTANT)
    Q_PROPERTY(QString picture READ picture CONSTANT)
    Q_PROPERTY(QString sample READ sample WRITE setSample NOTIFY sampleChanged)

public:
    /// Normal, hovered, pressed, with the keyboard, disabled, with a long text, and written from the right.
    static QStringList all();
    /// Those of what takes no pointer and no keys.
    static QStringList still();

    /// The key of a picture that is there.
    QString picture();

    /// What is to stand on every control in place of the pose's own word; empty for that.
    QString sample() const { return sample_; }
    void setSample(const QString &sample);

    /// The word for a control in that pose, in place of `usual` where the pose has one of its own.
    Q_INVOKABLE static QString word(const QString &pose, const QString &usual, const QString &sample);

    /// Puts the controls below that item into the pose, with what a pointer would send them, as soon as all of them are made.
    Q_INVOKABLE static void strike(QQuickItem *stage, const QString &pose);

signals:
    void sampleChanged();

private:
    QTemporaryFile picture_;
    QString sample_;
};

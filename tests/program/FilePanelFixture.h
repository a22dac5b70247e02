#pragma once

#include "base/Files.h"
#include "base/Paths.h"
#include "program/panel/FilePanelView.h"
#include "support/TestPlatform.h"

#include <QAbstractItemModelTester>

#include <memory>
#include <optional>

#include <gtest/gtest.h>

/// A panel over a home of its own, and what it answered.
class FilePanelFixture : public ::testing::Test
{
public:
    ~FilePanelFixture() override { files::injectFaults({}); }

protected:
    /// The values of a role, row by row.
    static QStringList column(QAbstractItemModel &rows, const QByteArray &role)
    {
        const int number = rows.roleNames().key(role);
        QStringList values;
        for (int row = 0; row < rows.rowCount(); ++row)
            values << rows.index(row, 0).data(number).toString();
        return values;
    }

    void make(FilePanelView::Request request)
    {
        view_ =
            std::make_unique<FilePanelView>(platform_.platform, std::move(request), [this](const auto &path) {
                ++answers_;
                path_ = path;
            });
        tester_ = std::make_unique<QAbstractItemModelTester>(view_->rows());
    }

    /// A panel for a folder, which begins there below the home folder.
    void chooseFolder(const QString &start, bool showsHidden = false)
    {
        make({QStringLiteral("Choose"), at(start), showsHidden, {}});
        settle();
    }

    /// A panel for a file of that name, which begins in the home folder.
    void save(const QString &name)
    {
        make({QStringLiteral("Export"), {}, false, name});
        settle();
    }

    void settle() { platform_.settle(); }
    QString at(const QString &relative) const
    {
        return relative.isEmpty() ? platform_.home : paths::join(platform_.home, relative);
    }
    QString folder(const QString &relative) const
    {
        return platform_.temp.folder(QStringLiteral("home/") + relative);
    }
    QString file(const QString &relative) const
    {
        return platform_.temp.file(QStringLiteral("home/") + relative);
    }
    QStringList names() { return column(*view_->rows(), "name"); }
    int row(const QString &name) { return static_cast<int>(names().indexOf(name)); }
    QString currentPlace()
    {
        const qsizetype row = column(*view_->places(), "isHere").indexOf(QStringLiteral("true"));
        return column(*view_->places(), "name").value(row);
    }

    TestPlatform platform_;
    std::unique_ptr<FilePanelView> view_;
    std::unique_ptr<QAbstractItemModelTester> tester_;
    int answers_ = 0;
    std::optional<QString> path_;
};

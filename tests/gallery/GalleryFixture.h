#pragma once

#include "gallery/Gallery.h"

#include <QString>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

class QQuickItem;

/// The gallery with all its sections on view. It is made once, since its controls are many; each test leaves it in the dark
/// palette with its own words, and fails when anything has warned.
struct GalleryTest : ::testing::Test
{
    static void SetUpTestSuite();
    static void TearDownTestSuite();
    void TearDown() override;

    /// Lets every item take its place.
    static void settle();

    /// The items on view that are made from that type of ours.
    static std::vector<QQuickItem *> ofType(const QString &type, QQuickItem *under = nullptr);

    static QString told(const QObject *object, const char *property);

    /// The control that a cell shows: an item, or a popup that opens over the window; null for none.
    static QObject *control(const QQuickItem *section, QQuickItem *cell);

    /// What assistive technology is told of the control in that cell (spoken::of): of the first item of it, from the outermost
    /// one, in the role that the section names. Empty where there is none.
    static QVariantMap spokenIn(const QQuickItem *section, QQuickItem *cell);

    /// For each cell of each section.
    static void forEachCell(const std::function<void(QQuickItem *section, QQuickItem *cell)> &check);

    static std::unique_ptr<Gallery> gallery;
};

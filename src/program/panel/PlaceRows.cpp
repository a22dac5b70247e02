#include "program/panel/PlaceRows.h"

#include "base/Files.h"

#include <utility>

PlaceRows::PlaceRows(const Platform &platform)
    : platform_(platform)
    , rows_({{"name", [](const panelplaces::Place &place) { return place.name; }},
             {"symbol", [](const panelplaces::Place &place) { return place.symbol; }},
             {"isHere", [](const panelplaces::Place &place) { return place.isHere; }},
             {"hereText", [](const panelplaces::Place &place) {
                  return place.isHere ? QStringLiteral("On view") : QString();
              }}})
{
    rows_.reset(panelplaces::usual(*platform_.locations));
}

QString PlaceRows::path(int row) const
{
    return row >= 0 && row < rows_.rowCount() ? rows_.records()[static_cast<size_t>(row)].path : QString();
}

void PlaceRows::mark(const QString &folder)
{
    for (int row = 0; row < rows_.rowCount(); ++row) {
        panelplaces::Place place = rows_.records()[static_cast<size_t>(row)];
        const bool isHere = place.path == folder;
        if (std::exchange(place.isHere, isHere) != isHere)
            rows_.replace(row, place);
    }
}

void PlaceRows::leaveOutMissing()
{
    QStringList asked;
    for (const panelplaces::Place &place : rows_.records())
        asked << place.path;
    // Places may lie on another disk, which may never answer: until it does they are shown.
    platform_.workQueue.post(WorkPriority::userInitiated, [asked, token = look_.ask(), self = QPointer(this),
                                                           &main = platform_.mainQueue] {
        for (const QString &path : asked) {
            if (!files::exists(path))
                token.answer(main, self, [path](PlaceRows &rows) { rows.leaveOut(path); });
        }
    });
}

void PlaceRows::leaveOut(const QString &missing)
{
    std::vector<panelplaces::Place> left = rows_.records();
    std::erase_if(left, [&](const panelplaces::Place &place) { return place.path == missing; });
    rows_.update(std::move(left), [](const panelplaces::Place &one, const panelplaces::Place &other) {
        return one.path == other.path;
    });
}

#pragma once

#include <QString>

#include <vector>

struct Locations;

/// The places that the program's own panel offers beside the folder on view.
namespace panelplaces {

struct Place
{
    QString name;
    QString symbol;
    QString path;
    bool isHere = false; ///< the folder on view
};

/// The user's usual places, and the whole file system. Nobody has looked whether they exist.
std::vector<Place> usual(const Locations &locations);

} // namespace panelplaces

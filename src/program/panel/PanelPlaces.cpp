#include "program/panel/PanelPlaces.h"

#include "platform/Locations.h"

namespace panelplaces {

std::vector<Place> usual(const Locations &locations)
{
    std::vector<Place> places;
    for (const Locations::SidebarPlace &place : locations.sidebarPlaces) {
        if (!place.path.isEmpty() && !place.onlyWhenExists)
            places.push_back({place.name, place.icon, place.path});
    }
    places.push_back(
        {QStringLiteral("File System"), QStringLiteral("internaldrive.fill"), QStringLiteral("/")});
    return places;
}

} // namespace panelplaces

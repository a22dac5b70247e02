#pragma once

#include "platform/Workspace.h"
#include "WaitUntil.h"

#include <QString>

#include <optional>

/// What a panel answered.
struct PanelAnswer
{
    int count = 0;
    std::optional<QString> path; // the latest

    Workspace::PathChosen taker()
    {
        return [this](const std::optional<QString> &chosen) {
            ++count;
            path = chosen;
        };
    }
    bool waitFor() const
    {
        return waitUntil([this] { return count > 0; });
    }
};

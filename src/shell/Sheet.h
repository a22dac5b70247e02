#pragma once

/// The sheets that stand on top of the window.
enum class Sheet {
    settings,
    shortcuts,
    history,
    onboarding,
};

/// Whether the program has a sheet yet. The command of one that it hasn't is there, disabled.
constexpr bool isBuilt(Sheet sheet)
{
    switch (sheet) {
    case Sheet::history:
        return true;
    case Sheet::settings:
    case Sheet::shortcuts:
    case Sheet::onboarding:
        return false;
    }
    return false;
}

#pragma once

#include "program/Composition.h"
#include "screens/Surroundings.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

/// What the tests of one tool's screens need of that tool beyond what its window shows: each a singleton of the tests'
/// QML that makes itself known here, so that a new tool's helper is a source file of its own and touches nothing else.
namespace toolhelpers {

struct Helper
{
    QString name; ///< in the tests' QML
    std::function<std::unique_ptr<QObject>(Composition &, Surroundings &)> make;
};

/// All that the program of the tests was linked with.
std::vector<Helper> &all();

/// A static object of this type makes `Type` known under that name. It is made ahead of the window, with the composition
/// and the surroundings, which both outlive it.
template<typename Type>
class Registration
{
public:
    explicit Registration(const char *name)
    {
        all().push_back({QString::fromLatin1(name), [](Composition &composition, Surroundings &surroundings) {
                             return std::make_unique<Type>(composition, surroundings);
                         }});
    }
};

} // namespace toolhelpers

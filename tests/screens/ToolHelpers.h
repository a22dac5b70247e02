#pragma once

#include "program/Composition.h"
#include "screens/Surroundings.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

/// What the tests of one tool's screens need of that tool beyond what its window shows: each a singleton of the tests'
/// QML that makes itself known here, so that a new tool's helper is a source file of its own and touches nothing else.
namespace toolhelpers {

using Make = std::function<std::unique_ptr<QObject>(Composition &, Surroundings &)>;

/// All that the program of the tests was linked with.
std::vector<Make> &all();

/// A static object of this type makes `Type` known, under the QML name that stands in it. It is made ahead of the window,
/// with the composition and the surroundings, which both outlive it.
template<typename Type>
class Registration
{
public:
    Registration()
    {
        all().push_back([](Composition &composition, Surroundings &surroundings) {
            return std::make_unique<Type>(composition, surroundings);
        });
    }
};

} // namespace toolhelpers

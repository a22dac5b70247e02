#pragma once

#include <QByteArray>

#include <ostream>

/// The name of an item, for tests that run for several, with a word for it that can stand in a test's name.
struct NamedBytes
{
    const char *word;
    QByteArray bytes;
};

// NOLINTNEXTLINE(readability-identifier-naming): the test library calls it by this name
inline void PrintTo(const NamedBytes &name, std::ostream *stream)
{
    *stream << name.word;
}

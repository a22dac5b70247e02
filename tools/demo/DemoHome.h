#pragma once

#include <QString>

/// A home folder of the Mac's shape with content as people have it: caches, downloads of all ages, duplicates,
/// applications and what they leave behind. Made in a temporary folder and removed with it.
class DemoHome
{
public:
    /// An empty folder. Throws std::system_error when the disk does not let it.
    DemoHome();
    ~DemoHome();
    DemoHome(const DemoHome &) = delete;
    DemoHome &operator=(const DemoHome &) = delete;

    /// Makes the content. Throws likewise.
    void fill() const;

    /// Takes it all away, as the destructor does where a process ends without one.
    void remove();

    QString home() const;               ///< ".../Users/robin"
    QString applicationsFolder() const; ///< ".../Applications"

private:
    QString root_;
};

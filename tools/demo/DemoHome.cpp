#include "DemoHome.h"

#include "base/Paths.h"
#include "DemoApplications.h"
#include "makers/MadeFiles.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include <unistd.h>

namespace {

constexpr qint64 kilobyte = 1024;
constexpr qint64 megabyte = 1024 * kilobyte;

struct DemoFile
{
    const char *path; // below the root
    qint64 size;
    int age;             // days since its last change
    const char *content; // at the beginning of the file; files of equal content and size are duplicates
};

constexpr std::array demoFiles = {
    DemoFile{"Users/robin/Documents/Thesis/thesis-final.pdf", 14 * megabyte, 12, "thesis"},
    DemoFile{"Users/robin/Documents/Thesis/thesis-draft-3.pdf", 13 * megabyte, 40, "draft three"},
    DemoFile{"Users/robin/Documents/Thesis/figures/overview.png", 2 * megabyte, 45, "overview"},
    DemoFile{"Users/robin/Documents/Invoices/2026-01.pdf", 240 * kilobyte, 200, "january"},
    DemoFile{"Users/robin/Documents/Invoices/2026-02.pdf", 260 * kilobyte, 170, "february"},
    DemoFile{"Users/robin/Documents/budget.xlsx", 900 * kilobyte, 8, "budget"},
    DemoFile{"Users/robin/Documents/Contracts/lease.pdf", 3 * megabyte, 400, "lease"},
    DemoFile{"Users/robin/Downloads/ubuntu-desktop.iso", 96 * megabyte, 95, "installer image"},
    DemoFile{"Users/robin/Downloads/thesis-final.pdf", 14 * megabyte, 11, "thesis"},
    DemoFile{"Users/robin/Downloads/thesis-final (1).pdf", 14 * megabyte, 10, "thesis"},
    DemoFile{"Users/robin/Downloads/holiday-photos.zip", 48 * megabyte, 61, "holiday"},
    DemoFile{"Users/robin/Downloads/editor-setup.dmg", 22 * megabyte, 33, "editor"},
    DemoFile{"Users/robin/Downloads/menu.pdf", 180 * kilobyte, 3, "menu"},
    DemoFile{"Users/robin/Downloads/Screenshot 2026-10-02.png", 1 * megabyte, 29, "screenshot"},
    DemoFile{"Users/robin/Pictures/Photos Library.photoslibrary/originals/0/IMG_0142.heic", 38 * megabyte,
             300, "p1"},
    DemoFile{"Users/robin/Pictures/Photos Library.photoslibrary/originals/1/IMG_0177.heic", 41 * megabyte,
             280, "p2"},
    DemoFile{"Users/robin/Pictures/2025 Iceland/DSC_0311.jpg", 9 * megabyte, 410, "iceland one"},
    DemoFile{"Users/robin/Pictures/2025 Iceland/DSC_0312.jpg", 9 * megabyte, 410, "iceland two"},
    DemoFile{"Users/robin/Pictures/2025 Iceland/DSC_0312 copy.jpg", 9 * megabyte, 390, "iceland two"},
    DemoFile{"Users/robin/Music/Albums/Northern Lights/01 Aurora.flac", 31 * megabyte, 700, "aurora"},
    DemoFile{"Users/robin/Music/Albums/Northern Lights/02 Fjord.flac", 28 * megabyte, 700, "fjord"},
    DemoFile{"Users/robin/Music/Podcasts/episode-118.mp3", 42 * megabyte, 20, "episode"},
    DemoFile{"Users/robin/Movies/birthday.mov", 120 * megabyte, 150, "birthday"},
    DemoFile{"Users/robin/Movies/birthday-cut.mp4", 35 * megabyte, 149, "birthday cut"},
    DemoFile{"Users/robin/Desktop/IMG_0142.heic", 38 * megabyte, 120, "p1"},
    DemoFile{"Users/robin/Desktop/episode-118.mp3", 42 * megabyte, 6, "episode"},
    DemoFile{"Users/robin/Desktop/2026-01 copy.pdf", 240 * kilobyte, 30, "january"},
    DemoFile{"Users/robin/Documents/holiday-photos.zip", 48 * megabyte, 60, "holiday"},
    DemoFile{"Users/robin/Desktop/notes.txt", 4 * kilobyte, 1, "notes"},
    DemoFile{"Users/robin/Desktop/Old Laptop/backup.tar", 64 * megabyte, 800, "backup"},
    DemoFile{"Users/robin/Projects/garden-planner/node_modules/lib/index.js", 18 * megabyte, 55, "module"},
    DemoFile{"Users/robin/Projects/garden-planner/src/main.swift", 36 * kilobyte, 14, "source"},
    DemoFile{"Users/robin/Projects/weather-station/firmware.bin", 6 * megabyte, 90, "firmware"},
    DemoFile{"Users/robin/Library/Caches/com.example.browser/Cache.db", 52 * megabyte, 1, "browser cache"},
    DemoFile{"Users/robin/Library/Caches/com.example.maps/tiles.db", 24 * megabyte, 2, "tiles"},
    DemoFile{"Users/robin/Library/Application Support/Sketchpad/library.db", 17 * megabyte, 7, "sketches"},
    DemoFile{"Users/robin/Library/Application Support/Old Notes/notes.db", 11 * megabyte, 500, "old notes"},
    DemoFile{"Users/robin/Library/Caches/Google/Chrome/Default/Cache/data_3", 88 * megabyte, 1,
             "chrome cache"},
    DemoFile{"Users/robin/Library/Caches/Google/Chrome/Default/Code Cache/index.bin", 26 * megabyte, 2,
             "chrome code"},
    DemoFile{"Users/robin/Library/Caches/com.apple.Safari/Cache.db", 31 * megabyte, 4, "safari cache"},
    DemoFile{"Users/robin/Library/Caches/org.mozilla.firefox/profile/cache2/entries.bin", 19 * megabyte, 3,
             "fox cache"},
    DemoFile{"Users/robin/Library/Developer/Xcode/DerivedData/Weather/Build/Products/Weather.app/Weather",
             64 * megabyte, 20, "weather build"},
    DemoFile{"Users/robin/Library/Developer/Xcode/DerivedData/Weather/Index/store.db", 23 * megabyte, 20,
             "weather index"},
    DemoFile{"Users/robin/.npm/_cacache/content-v2/sha512/2f/package.tgz", 37 * megabyte, 15, "package"},
    DemoFile{"Users/robin/.npm/_cacache/index-v5/0c/entries", 2 * megabyte, 15, "package index"},
    DemoFile{"Users/robin/Library/Logs/sync.log", 3 * megabyte, 1, "log"},
    DemoFile{"Users/robin/Library/Logs/DiagnosticReports/Sketchpad-2026-09-14.ips", 420 * kilobyte, 48,
             "report of a crash"},
    DemoFile{"Users/robin/Library/Logs/Printing/queue.log", 96 * kilobyte, 9, "queue"},
    DemoFile{"Users/robin/Library/Preferences/com.example.sketchpad.plist", 2 * kilobyte, 7, "preferences"},
    DemoFile{"Users/robin/Library/Mail/V10/mailbox.mbox", 27 * megabyte, 1, "mail"},
    DemoFile{"Users/robin/.Trash/old-report.pdf", 5 * megabyte, 35, "report"},
    DemoFile{"Users/robin/.Trash/Screen Recording 2026-08-30.mov", 29 * megabyte, 62, "recording"},
    DemoFile{"Users/robin/.Trash/old drafts/draft-1.pages", 1 * megabyte, 90, "first draft"},
};

std::filesystem::path native(const QString &path)
{
    return paths::toBytes(path).toStdString();
}

} // namespace

DemoHome::DemoHome()
{
    std::string pattern = std::filesystem::canonical(std::filesystem::temp_directory_path()).string()
                          + "/quillmere-demo-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr)
        throw std::system_error(errno, std::generic_category(), pattern);
    root_ = paths::fromBytes(pattern);
}

void DemoHome::fill() const
{
    for (const DemoFile &file : demoFiles)
        madefiles::make(paths::join(root_, QString::fromUtf8(file.path)), file.content, file.size, file.age);
    demoapplications::make(applicationsFolder(), home());
    for (const char *folder :
         {"Users/robin/Documents/Empty Folder", "Users/robin/Documents/Talks/2024",
          "Users/robin/Desktop/New Folder", "Users/robin/Downloads/unpacked", "Users/robin/Library/Safari"})
        std::filesystem::create_directories(native(paths::join(root_, QString::fromUtf8(folder))));
}

DemoHome::~DemoHome()
{
    remove();
}

void DemoHome::remove()
{
    std::error_code ignored;
    std::filesystem::remove_all(native(root_), ignored);
}

QString DemoHome::home() const
{
    return paths::join(root_, QStringLiteral("Users/robin"));
}

QString DemoHome::applicationsFolder() const
{
    return paths::join(root_, QStringLiteral("Applications"));
}

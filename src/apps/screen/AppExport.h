#pragma once

class AppService;
struct Platform;

/// The App Manager's lists as files of the user's. Each asks where to save its file, writes it whole and shows it in the file
/// viewer. Where the disk refuses, what was there stays as it was, and nothing is said. Main thread.
namespace appexport {

void saveInstalled(const Platform &platform, AppService &service);
void saveGhosts(const Platform &platform, AppService &service);

} // namespace appexport

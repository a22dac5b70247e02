#include "TemporaryFolder.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

TemporaryFolder::TemporaryFolder()
    : path_(std::filesystem::canonical(std::filesystem::temp_directory_path()).string()
            + "/quillmere-benchmark-XXXXXX")
{
    if (mkdtemp(path_.data()) == nullptr)
        throw std::system_error(errno, std::generic_category(), path_);
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::folder(const std::string &name) const
{
    const std::filesystem::path made = std::filesystem::path(path_) / name;
    std::filesystem::create_directory(made);
    // As a session's own folder has to be.
    std::filesystem::permissions(made, std::filesystem::perms::owner_all);
    return made.string();
}

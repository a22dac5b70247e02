#include "DuplicateOracle.h"

#include <QByteArray>
#include <QCryptographicHash>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <system_error>

namespace fs = std::filesystem;

namespace {

using Paths = std::vector<std::string>;

bool isCovered(const std::string &path, const std::string &rule)
{
    return path == rule || path.rfind(rule + "/", 0) == 0;
}

std::string lastName(std::string path)
{
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path.substr(path.rfind('/') + 1);
}

/// The walk of one scan path.
struct WalkedTree
{
    Paths rules;
    std::int64_t minFileSize = 0;
    std::map<std::int64_t, Paths> bySize;
    Paths visited;

    bool isIgnored(const std::string &path) const
    {
        for (const std::string &rule : rules) {
            if (rule[0] == '/' ? isCovered(path, rule) : lastName(path) == rule)
                return true;
        }
        return false;
    }

    void enter(const std::string &path, int depth)
    {
        if (depth >= 8 || isIgnored(path))
            return;
        visited.push_back(path);
        Paths names;
        std::error_code failure;
        for (const fs::directory_entry &entry : fs::directory_iterator(path, failure))
            names.push_back(entry.path().filename().string());
        for (const std::string &name : names) {
            if (name[0] != '.')
                look(std::string(path).append("/").append(name), depth);
        }
    }

    void look(const std::string &path, int depth)
    {
        std::error_code failure;
        const fs::file_status status = fs::status(path, failure); // links are followed
        if (!fs::exists(status))
            return;
        if (fs::is_directory(status)) {
            enter(path, depth + 1);
            return;
        }
        const auto size = fs::is_symlink(fs::symlink_status(path))
                              ? static_cast<std::int64_t>(fs::read_symlink(path).string().size())
                              : static_cast<std::int64_t>(fs::file_size(path));
        if (size >= minFileSize)
            bySize[size].push_back(path);
    }
};

WalkedTree walkAll(const DuplicateOracle &oracle)
{
    WalkedTree walk;
    walk.minFileSize = oracle.minFileSize;
    for (const std::string &root : oracle.scanPaths) {
        walk.rules.clear();
        for (const std::string &rule : oracle.ignorePaths) {
            if (!(rule[0] == '/' && isCovered(root, rule)))
                walk.rules.push_back(rule);
        }
        walk.enter(root, 0);
    }
    return walk;
}

QByteArray readAt(std::ifstream &file, std::int64_t offset, std::int64_t count)
{
    QByteArray bytes(static_cast<qsizetype>(count), '\0');
    file.clear();
    file.seekg(offset);
    file.read(bytes.data(), count);
    bytes.truncate(static_cast<qsizetype>(file.gcount()));
    return bytes;
}

std::string digest(const std::string &path, std::int64_t size)
{
    std::ifstream file(path, std::ios::binary);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (size <= 1048576) {
        hash.addData(readAt(file, 0, size));
    } else {
        hash.addData(readAt(file, 0, 8192));
        hash.addData(readAt(file, size - 8192, 8192));
        QByteArray sizeBytes;
        for (int shift = 0; shift < 64; shift += 8)
            sizeBytes.append(
                static_cast<char>(static_cast<std::uint64_t>(size) >> static_cast<unsigned>(shift)));
        hash.addData(sizeBytes);
    }
    return hash.result().toHex().toStdString();
}

} // namespace

std::vector<DuplicateOracle::Group> DuplicateOracle::groups() const
{
    std::vector<Group> all;
    for (const auto &[size, paths] : walkAll(*this).bySize) {
        std::map<std::string, Paths> byDigest;
        for (const std::string &path : paths)
            byDigest[digest(path, size)].push_back(path);
        for (const auto &[hash, equal] : byDigest) {
            if (equal.size() < 2)
                continue;
            const bool hasMarked = std::any_of(equal.begin(), equal.end(), [this](const std::string &path) {
                return marked.contains(path);
            });
            Group group{hash, size, equal, {}};
            for (size_t i = 0; i < equal.size(); ++i)
                group.keep.push_back(hasMarked ? !marked.contains(equal[i]) : i == 0);
            all.push_back(group);
        }
    }
    return all;
}

std::vector<std::string> DuplicateOracle::visited() const
{
    return walkAll(*this).visited;
}

#pragma once

#include "TreeShape.h"

#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

/// What the generators of trees share. All of it throws std::system_error where the disk refuses.
namespace treeparts {

using Random = std::mt19937_64;

/// 0 to below `end`. Not a distribution of the library, whose results differ between libraries.
size_t below(Random &random, size_t end);

/// The paths of `root` and of the folders made inside it, as many as the shape's files need.
std::vector<std::string> makeFolders(const std::string &root, const TreeShape &shape, Random &random);

/// Makes one folder.
void makeFolder(const std::string &path);

/// Makes another name of a file: a hard link.
void makeLink(const std::string &path, const std::string &file);

/// Makes a file of that content, and a hole behind it up to `size` bytes.
void makeFile(const std::string &path, std::string_view content, std::int64_t size);

} // namespace treeparts

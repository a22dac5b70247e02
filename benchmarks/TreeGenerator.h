#pragma once

#include "TreeShape.h"

#include <string>

/// Fills an empty folder with a tree of that shape: files spread evenly over folders that reach three to five levels
/// down, by branch. Throws std::system_error.
void generateTree(const std::string &folder, const TreeShape &shape);

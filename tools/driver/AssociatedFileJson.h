#pragma once

#include "apps/catalogue/AssociatedFile.h"

#include <QJsonArray>

#include <vector>

namespace json {

/// The files of an application or of what is left of one, with every field.
QJsonArray associatedFiles(const std::vector<AssociatedFile> &files);

} // namespace json

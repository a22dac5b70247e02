#include "base/Ids.h"

#include <QRandomGenerator>

#include <array>
#include <bit>

namespace ids {

QUuid fresh()
{
    std::array<quint32, 4> words{};
    QRandomGenerator::global()->fillRange(words.data(), words.size());
    auto bytes = std::bit_cast<std::array<char, 16>>(words);
    bytes[6] = static_cast<char>((bytes[6] & 0x0F) | 0x40); // of the kind "random"
    bytes[8] = static_cast<char>((bytes[8] & 0x3F) | 0x80); // in the usual layout
    return QUuid::fromRfc4122({bytes.data(), bytes.size()});
}

} // namespace ids

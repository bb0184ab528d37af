#pragma once

#include <QtGlobal>

// The pieces of the NE (16-bit Windows) executable layout that both the
// library reader and the library writer use.
namespace NeLayout {

// Where the DOS header keeps the NE header's offset.
constexpr qint64 kNeHeaderField = 0x3C;
// Where the NE header keeps its resource table's offset, from the NE header.
constexpr qint64 kResourceTableField = 0x24;

// A type or resource ID with this bit set is a number, not a name's offset.
constexpr quint32 kIntegerId = 0x8000;
constexpr quint32 kIcon = kIntegerId | 3;
constexpr quint32 kGroupIcon = kIntegerId | 14;

} // namespace NeLayout

#pragma once

#include "tarnmodel/platform/foundation/values/NSData.h"

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>

namespace tarn {

/// A flat dictionary of whole numbers; keys are UTF-8.
using IntegerDictionary = std::map<std::string, std::uint64_t, std::less<>>;

/// The dictionary as a binary property list ("bplist00"). Equal dictionaries give equal bytes: keys stand in the order
/// of the dictionary. Numbers from 2^63 on take the 16-byte form, since 8 bytes are read as signed. Ill-formed keys
/// read as U+FFFD.
NSData binaryPropertyListWithDictionary(const IntegerDictionary& dictionary);

/// Reads a binary property list whose root is a flat dictionary of integers: of several equal keys the last counts, a
/// negative number arrives as its two's complement. None for anything else, hostile bytes included; the work is linear
/// in the bytes given.
std::optional<IntegerDictionary> dictionaryFromBinaryPropertyList(std::span<const std::byte> bytes);

} // namespace tarn

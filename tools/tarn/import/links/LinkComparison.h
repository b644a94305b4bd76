#pragma once

#include "tarnmodel/corvel/CVKAST.h"

#include <string>
#include <vector>

namespace tarn {

/// Where a link of a text leads, and in which way.
struct LinkTarget {
    bool isWiki = false;
    std::string destination; ///< decoded
    friend bool operator==(const LinkTarget&, const LinkTarget&) = default;
};

/// Of all links of the text, in its order.
std::vector<LinkTarget> linkTargetsOf(const CVKAST& document);

/// Whether texts differ in nothing but links, as far as a note is concerned.
bool saysTheSame(const CVKAST& before, const CVKAST& after);

/// The text of `after` without definitions that had uses in `before` and have none any more. One that shares its lines
/// with something else stays, and so does what the text would not say the same without.
std::string withoutUnusedDefinitions(const CVKAST& before, const CVKAST& after);

} // namespace tarn

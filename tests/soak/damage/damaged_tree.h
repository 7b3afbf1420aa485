#pragma once

#include "dice.h"

#include <filesystem>
#include <string>

namespace orvelle::soak {

/// The text with a few faults: cut off, emptied, with bytes that are not UTF-8, with numbers at the limits of
/// their types or far beyond, with lines lost, repeated or exchanged.
[[nodiscard]] std::string damagedText(std::string text, Dice& dice);

/// Damages some entries of a tree of files: they are lost, emptied, damaged as above or made huge, become
/// folders, links to themselves, to nothing or to a folder above, or get names that nobody expects. Files
/// are replaced, never written to, so that the tree may share them with others.
void damageTree(const std::filesystem::path& root, Dice& dice);

} // namespace orvelle::soak

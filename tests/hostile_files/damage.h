#pragma once

#include <random>
#include <string>

/// What disks, networks and people do to files.
namespace hostile_files {

/// The bytes of a file with one kind of damage, chosen by the random numbers: flipped
/// bits, overwritten stretches, header fields with the numbers that readers trip over, a
/// lost end, a stretch from elsewhere in the file. The same numbers do the same damage.
std::string Damage(std::string bytes, std::mt19937& random);

/// As Damage, for a file of text: also numbers replaced by ones that nobody expects.
std::string DamageText(std::string text, std::mt19937& random);

}  // namespace hostile_files

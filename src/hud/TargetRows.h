// The rows of a target's card under its name, by class of object.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "hud/TargetReading.h"

namespace ombrel::target {

// The text of a row; empty when the object has nothing to say there, and the row is left out.
using RowText = std::string (*)(Reading& reading);

constexpr std::size_t kMostRows = 5;

std::span<const RowText> RowsOf(std::int32_t object_class);

// Creatures and people have a health bar.
bool HasHealth(std::int32_t object_class);

// The name, and of a stack the count with the plural.
std::string NameText(const Reading& reading);

}  // namespace ombrel::target

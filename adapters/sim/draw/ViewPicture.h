// Pictures of the options view, as the player sees it.
#pragma once

#include <string>
#include <vector>

#include "adapters/sim/View.h"

namespace ombrel::sim {

// The view with the tabs that are open, as a PNG file. Throws std::runtime_error when it cannot be written.
void WriteViewPicture(const SimView& view, const std::string& path, double scale = 1.0);

// One picture for each tab without tabs of its own, named after the labels on the way to it ("Chat-Color.png"). Opens
// the tabs; the names of the files, in the order of the tabs.
std::vector<std::string> WriteTabPictures(SimView& view, const std::string& folder, double scale = 1.0);

}  // namespace ombrel::sim

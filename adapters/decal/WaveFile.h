// Sounds in wave files.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace ombrel::decal {

// The parts of a wave file's content, which must outlive this.
struct WaveFile {
    std::string_view format;  // a WAVEFORMATEX, or its shorter forerunner
    std::string_view samples;

    // Finds the parts. Throws failure 5 for a content that is no wave file, or one with nothing to play.
    static WaveFile In(std::string_view content);
};

}  // namespace ombrel::decal

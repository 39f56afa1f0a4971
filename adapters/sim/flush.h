// The one thing that the simulated client asks of the real system beyond the standard library.
#pragma once

#include <string>

namespace ombrel::sim {

// Makes the system write a file's content to the disk. Failure 53 when it can't be opened, 57 when it can't be written.
void FlushFile(const std::string& path);

}  // namespace ombrel::sim

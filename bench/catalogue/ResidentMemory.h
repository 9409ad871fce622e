#pragma once

/// The memory that this process has in use, in bytes; 0 where the system doesn't say (it does on Linux).
namespace ResidentMemory {

double now();

/// The most since the start, or since the last forgetPeak().
double peak();
void forgetPeak();

} // namespace ResidentMemory

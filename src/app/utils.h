#pragma once

namespace Utils {

// Logical processors of this machine.
int processorCount();

} // namespace Utils

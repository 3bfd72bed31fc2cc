#pragma once

namespace Installation {

// Checks that the files Brisko ships (report templates, the manual) are in
// place before anything needs them. When some are missing it says which, and
// where it looked, in a box; false then, and the program does not start.
bool confirmShippedFilesPresent();

} // namespace Installation

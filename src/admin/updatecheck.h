#pragma once

class UpdateChecker;

namespace modMain {

// Compares the newest released version with the program's own and, when it
// is newer and the user wants it, opens the download in the browser. A
// failure, the update service's or a version that is no number, is raised.
void checkForUpdate();
void checkForUpdate(const UpdateChecker &checker);

} // namespace modMain

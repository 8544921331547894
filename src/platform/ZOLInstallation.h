#pragma once
#include <string>

// Where the program's own files are, always relative to the running executable: an installed
// copy has bin/ beside share/zol-estimator/ and libexec/zol-estimator/, wherever the prefix is;
// the build folder has the programs with their resources/ folder beside them.
class ZOLInstallation {
public:
    ZOLInstallation() = delete;

    // The folder of the running executable; empty when the system does not say.
    static std::string executableDirectory();
    // The resources folder (report background, user guide).
    static std::string resourcesDirectory();
    // A helper program: beside the executable, or in the package's libexec folder; empty when
    // it is in neither place.
    static std::string helperPath(const std::string& name);
};

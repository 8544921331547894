#include "platform/ZOLInstallation.h"

#include <filesystem>
#include <unistd.h>

// Paths from the installed bin/ folder; the build sets them from its install layout.
#ifndef ZOL_INSTALLED_RESOURCES
#define ZOL_INSTALLED_RESOURCES "../share/zol-estimator/resources"
#endif
#ifndef ZOL_INSTALLED_LIBEXEC
#define ZOL_INSTALLED_LIBEXEC "../libexec/zol-estimator"
#endif

namespace fs = std::filesystem;

std::string ZOLInstallation::executableDirectory() {
    std::error_code error;
    const fs::path self = fs::read_symlink("/proc/self/exe", error);
    return error ? std::string() : self.parent_path().string();
}

std::string ZOLInstallation::resourcesDirectory() {
    const std::string here = executableDirectory();
    if (here.empty())
        return "resources";
    // An installed copy keeps them under share/, a build folder in resources/ beside the
    // programs. zolest-render runs from libexec/zol-estimator/, one level deeper than bin/, and
    // benchmarks and window tests from a folder below the build folder's programs.
    for (const fs::path& base : {fs::path(here), fs::path(here).parent_path()})
        for (const fs::path& candidate :
             {(base / ZOL_INSTALLED_RESOURCES).lexically_normal(), base / "resources"}) {
            std::error_code error;
            if (fs::is_directory(candidate / "report", error))
                return candidate.string();
        }
    return (fs::path(here) / "resources").string();
}

std::string ZOLInstallation::helperPath(const std::string& name) {
    const std::string here = executableDirectory();
    if (here.empty())
        return std::string();
    for (const fs::path& candidate :
         {fs::path(here) / name,
          (fs::path(here) / ZOL_INSTALLED_LIBEXEC / name).lexically_normal()})
        if (::access(candidate.c_str(), X_OK) == 0)
            return candidate.string();
    return std::string();
}

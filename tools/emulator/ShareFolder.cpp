#include "PlatformEmulator.h"

#include <dlfcn.h>

namespace emulator {
namespace {

constexpr const char* kShareFolder = "share/apimodule";

}  // namespace

std::filesystem::path DefaultShareFolder()
{
    namespace fs = std::filesystem;
    std::error_code fault;
    Dl_info self{};
    dladdr(reinterpret_cast<const void*>(&DefaultShareFolder), &self);
    const fs::path program = fs::read_symlink("/proc/self/exe", fault);
    for (const fs::path& file : {self.dli_fname ? fs::canonical(self.dli_fname, fault) : fs::path(), program}) {
        for (fs::path folder = file.parent_path(); folder != folder.parent_path(); folder = folder.parent_path()) {
            if (fs::exists(folder / kShareFolder / "contract", fault)) {
                return folder / kShareFolder;
            }
        }
    }
    return program.parent_path().parent_path() / kShareFolder;
}

}  // namespace emulator

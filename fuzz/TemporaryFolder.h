// A folder for the files of a fuzz target: in memory where the system has such a place, since
// thousands of them are written in a second.

#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace tarn {

class TemporaryFolder {
  public:
    TemporaryFolder() {
        const std::filesystem::path inMemory = "/dev/shm";
        const auto parent = std::filesystem::is_directory(inMemory)
                                ? inMemory
                                : std::filesystem::temp_directory_path();
        std::string name = (parent / "tarn-fuzz-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) {
            std::abort();
        }
        path_ = name;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

} // namespace tarn

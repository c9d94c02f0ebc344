#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace tessarondel::testing {

// A fresh directory under /tmp, removed with everything in it at the end.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "tessarondel-cfd-XXXXXX").string();
        path_ = ::mkdtemp(pattern.data());
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

    void Write(const std::string& name, std::string_view bytes) const {
        std::ofstream(path_ / name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }

private:
    std::filesystem::path path_;
};

inline std::string ReadBytes(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// The bytes of a document as the manager writes them, with no description.
inline std::string DocumentBytes(std::string_view name, std::string_view parameters, std::string_view body) {
    return "%%Tessarondel Custom Function Document - 1.0\r\n[Function Name]\r\n" + std::string(name) +
           "\r\n[Parameter List]\r\n" + std::string(parameters) + "\r\n[Expression List]\r\n" + std::string(body) +
           "\r\n[Description]\r\n\r\n";
}

}  // namespace tessarondel::testing

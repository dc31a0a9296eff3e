#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace zerna {

/// A folder of its own that disappears with the test.
class TemporaryFolder {
public:
    TemporaryFolder()
    {
        std::random_device random;
        do
            m_path = std::filesystem::temp_directory_path() / ("zerna-" + std::to_string(random()));
        while (!std::filesystem::create_directory(m_path));
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

    /// The name is UTF-8, whatever the platform takes a char for.
    std::filesystem::path operator/(std::string_view name) const
    {
        return m_path / std::filesystem::path(std::u8string(name.begin(), name.end()));
    }

private:
    std::filesystem::path m_path;
};

inline std::string bytesOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline void writeBytes(const std::filesystem::path& file, const std::string& bytes)
{
    std::ofstream(file, std::ios::binary) << bytes;
}

} // namespace zerna

#include "bench/ReportPage.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tarn {

void WriteFile(const std::string& path, const std::string& content) {
    std::ofstream file(path, std::ios::binary);
    file << content;
    file.flush();
    if (!file) {
        throw std::runtime_error(path + " cannot be written");
    }
}

void WritePage(const std::string& folder, const std::string& name,
               const std::vector<std::pair<std::string, std::string>>& fields) {
    const std::string source = folder + "/" + name + ".in.md";
    std::ifstream input(source);
    std::string text((std::istreambuf_iterator<char>(input)), std::istreambuf_iterator<char>());
    const std::string complaint = source + " has no place for ";
    for (const auto& [field, value] : fields) {
        const std::size_t at = text.find(field);
        if (at == std::string::npos) {
            throw std::runtime_error(complaint + field);
        }
        text.replace(at, field.size(), value);
    }
    WriteFile(folder + "/" + name + ".md", text);
}

} // namespace tarn

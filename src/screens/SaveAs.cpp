#include "screens/SaveAs.h"

#include "files/OutputFile.h"

namespace tarn {

void SaveAs(Dialogs& boxes, const std::string& name, const std::string& suffix,
            const std::function<void(const std::string& path)>& write) {
    const auto path = boxes.SaveFileName(name, suffix);
    if (!path) {
        return;
    }
    try {
        write(*path);
    } catch (const OutputFileError&) {
        throw;
    } catch (const std::exception& error) {
        throw OutputFileError("The file " + *path + " cannot be written: " + error.what());
    }
}

} // namespace tarn

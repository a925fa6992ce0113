#include "screens/SaveAs.h"

#include "base/Words.h"
#include "files/OutputFile.h"

namespace tarn {

void SaveAs(const Session& session, const std::string& name, const std::string& suffix,
            const std::function<void(const std::string& path)>& write) {
    session.Note({});
    const auto path = session.Boxes.SaveFileName(name, suffix);
    if (!path) {
        return;
    }
    try {
        write(*path);
    } catch (const OutputFileError&) {
        throw;
    } catch (const std::exception& error) {
        throw OutputFileError(Words("The file %1 cannot be written: %2", *path, error.what()));
    }
    session.Note(Words("Saved: %1", path->substr(path->rfind('/') + 1)));
}

} // namespace tarn

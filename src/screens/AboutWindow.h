#pragma once

#include "store/DataFolder.h"

#include <QDialog>

#include <string>
#include <utility>
#include <vector>

class QTextBrowser;

namespace tarn {

/// What lies where, each by its name in the language in force and its path.
using Places = std::vector<std::pair<std::string, std::string>>;

/// Where the program keeps what: the data of `folder`, their backups, and what is the user's own.
Places PlacesOf(const DataFolder& folder);

/// What the program is: its version, where data and settings lie, and the licences of its parts
/// (docs/licences.md, which is built in), as one text to read and to copy from.
class AboutWindow : public QDialog {
  public:
    AboutWindow(QWidget& program, const Places& places);

  private:
    void Fill(const Places& places);

    QTextBrowser* text_ = nullptr;
};

} // namespace tarn

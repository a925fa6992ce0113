#pragma once

#include <vector>

class QWidget;

namespace tarn {

/// Takes every control of `parent` but one out of use while it lives, so that what runs meanwhile
/// is not disturbed. What was out of use before stays so afterwards.
class OthersDisabled {
  public:
    OthersDisabled(const QWidget& parent, const QWidget& but);
    ~OthersDisabled();
    OthersDisabled(const OthersDisabled&) = delete;
    OthersDisabled& operator=(const OthersDisabled&) = delete;

  private:
    std::vector<QWidget*> disabled_;
};

} // namespace tarn

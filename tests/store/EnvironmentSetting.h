#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace tarn::testing {

/// An environment variable as a test sets it; put back when it goes.
class EnvironmentSetting {
  public:
    EnvironmentSetting(const char* name, const char* value)
        : name_(name)
        , before_(qgetenv(name))
        , wasSet_(qEnvironmentVariableIsSet(name)) {
        if (value == nullptr) {
            qunsetenv(name);
        } else {
            qputenv(name, value);
        }
    }
    ~EnvironmentSetting() {
        if (wasSet_) {
            qputenv(name_, before_);
        } else {
            qunsetenv(name_);
        }
    }
    EnvironmentSetting(const EnvironmentSetting&) = delete;
    EnvironmentSetting& operator=(const EnvironmentSetting&) = delete;

  private:
    const char* name_;
    QByteArray before_;
    bool wasSet_;
};

} // namespace tarn::testing

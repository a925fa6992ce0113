#pragma once

#include <QCoreApplication>

#include <memory>

namespace tarn {

/// The application of a program without a display: one that can paint pages where `paints`.
std::unique_ptr<QCoreApplication> NewApplication(int& argc, char** argv, bool paints);

} // namespace tarn

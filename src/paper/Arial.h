#pragma once

class QFont;

namespace tarn {

/// "Arial" in that size (in the painter's units), not bold, or the face without serifs that has to
/// stand in for it. Every letter is as wide as it is by itself, so that a text on paper is as long
/// as it was taken to be when it was laid out.
QFont Arial(int size);

} // namespace tarn

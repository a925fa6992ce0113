#include "paper/IppAttributes.h"
#include "paper/QueueMedia.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

/// A queue that describes itself by its default paper alone.
Ipp QueueWith(const char* mediaDefault) {
    Ipp queue(ippNew());
    ippAddString(queue.get(), IPP_TAG_PRINTER, IPP_TAG_KEYWORD, "media-default", nullptr,
                 mediaDefault);
    return queue;
}

/// Adds a size (hundredths of a millimetre) with its margins to what the queue lists.
void List(const Ipp& queue, int width, int length, int margin) {
    const Ipp size(ippNew());
    ippAddInteger(size.get(), IPP_TAG_PRINTER, IPP_TAG_INTEGER, "x-dimension", width);
    ippAddInteger(size.get(), IPP_TAG_PRINTER, IPP_TAG_INTEGER, "y-dimension", length);
    const Ipp entry(ippNew());
    ippAddCollection(entry.get(), IPP_TAG_PRINTER, "media-size", size.get());
    for (const char* side : {"top", "bottom", "left", "right"}) {
        const std::string name = std::string("media-") + side + "-margin";
        ippAddInteger(entry.get(), IPP_TAG_PRINTER, IPP_TAG_INTEGER, name.c_str(), margin);
    }
    ippAddCollection(queue.get(), IPP_TAG_PRINTER, "media-col-database", entry.get());
}

TEST(MediaOf, TheQueuesOwnPaperIsHeldLandscapeWithItsMargins) {
    const Ipp queue = QueueWith("na_letter_8.5x11in");
    List(queue, 21590, 27940, 1270);
    const QueueMedia media = MediaOf(queue.get(), {});
    EXPECT_NEAR(media.Sheet.Size.Width, 11 * 1440, 0.5);
    EXPECT_NEAR(media.Sheet.Size.Height, 8.5 * 1440, 0.5);
    EXPECT_NEAR(media.Sheet.Left, 720, 0.5);
    EXPECT_NEAR(media.Sheet.Top, 720, 0.5);
    EXPECT_EQ(media.Media, "na_letter_8.5x11in");
}

TEST(MediaOf, NoMarginIsLessThanPrintersReach) {
    const Ipp queue = QueueWith("iso_a4_210x297mm");
    List(queue, 21000, 29700, 0);
    const Paper sheet = MediaOf(queue.get(), {}).Sheet;
    for (const Double margin : {sheet.Left, sheet.Top, sheet.Right, sheet.Bottom}) {
        EXPECT_EQ(margin, Paper::LeastMargin);
    }
}

TEST(MediaOf, ARollWithoutAnEndAndAnUnknownNameLeaveThePaperToTheQueue) {
    for (const char* name : {"roll_label_62x0mm", "custom_0x0mm", "om_stone_tablet", ""}) {
        const Ipp queue = QueueWith(name);
        const QueueMedia media = MediaOf(queue.get(), {});
        EXPECT_EQ(media.Sheet.Size.Width, Paper().Size.Width) << name;
        EXPECT_EQ(media.Sheet.Size.Height, Paper().Size.Height) << name;
        EXPECT_EQ(media.Media, "") << name;
    }
}

TEST(MediaOf, TheUsersSizeHoldsBeforeTheQueues) {
    const Ipp queue = QueueWith("na_letter_8.5x11in");
    const QueueMedia media = MediaOf(queue.get(), {{"media", "Tray2,A4"}});
    EXPECT_NEAR(media.Sheet.Size.Width, 16838, 1);
    EXPECT_EQ(media.Media, "iso_a4_210x297mm,Tray2");
    EXPECT_EQ(media.Size, "A4");
}

} // namespace
} // namespace tarn

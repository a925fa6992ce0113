#include "screens/MovingPicture.h"
#include "screens/ScreenTesting.h"

#include <QPainter>

#include <functional>
#include <optional>

namespace tarn {
namespace {

using namespace tarn::testing;

/// Shows a picture of two halves, and counts what is painted of it.
struct Surface : QWidget {
    Surface() { resize(200, 100); }

    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        picture.Paint(painter, at);
    }
    QImage Grab() { return grab().toImage(); }

    std::vector<QRect> Parts; ///< that were painted exactly
    PictureAt at;
    MovingPicture picture{*this,
                          [this](QPainter& painter, const PictureAt& place, const QRect& part) {
                              painter.fillRect(part.isEmpty() ? rect() : part, Qt::white);
                              if (!part.isEmpty()) {
                                  Parts.push_back(part);
                                  painter.fillRect(
                                      QRectF(place.Origin, QSizeF(100, 100) * place.Zoom), Qt::red);
                              }
                          },
                          [] { return QSizeF(200, 100); }};
};

struct MovingPictures : ::testing::Test {
    Surface surface;
};

TEST_F(MovingPictures, IsPaintedOnceWhileItRests) {
    EXPECT_EQ(surface.Grab().pixelColor(50, 50), QColor(Qt::red));
    const std::size_t painted = surface.Parts.size();
    EXPECT_EQ(surface.Grab().pixelColor(150, 50), QColor(Qt::white));
    EXPECT_EQ(surface.Parts.size(), painted);
    EXPECT_FALSE(surface.picture.IsMoving());
}

TEST_F(MovingPictures, PaintsOnlyWhatScrollsIntoView) {
    surface.Grab();
    surface.Parts.clear();
    surface.at.Origin = QPointF(-10, 0);
    const QImage scrolled = surface.Grab();
    EXPECT_EQ(surface.Parts, (std::vector<QRect>{QRect(190, 0, 10, 100)}));
    EXPECT_EQ(scrolled.pixelColor(89, 50), QColor(Qt::red));
    EXPECT_EQ(scrolled.pixelColor(90, 50), QColor(Qt::white));
    EXPECT_FALSE(surface.picture.IsMoving()) << "it is exact";
    surface.at.Origin = QPointF(-10, 7);
    EXPECT_EQ(surface.Grab().pixelColor(50, 3), QColor(Qt::white));
}

TEST_F(MovingPictures, IsScaledWhileItZoomsAndExactWhenItRests) {
    surface.Grab();
    surface.Parts.clear();
    surface.at = {2, QPointF(-20, -30)};
    const QImage moving = surface.Grab();
    EXPECT_TRUE(surface.Parts.empty());
    EXPECT_TRUE(surface.picture.IsMoving());
    EXPECT_EQ(moving.pixelColor(100, 50), QColor(Qt::red));
    EXPECT_EQ(moving.pixelColor(190, 50), QColor(Qt::white));
    surface.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&surface));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !surface.picture.IsMoving(); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !surface.Parts.empty(); }));
    surface.Grab();
    EXPECT_FALSE(surface.picture.IsMoving());
    EXPECT_EQ(surface.Grab().pixelColor(179, 50), QColor(Qt::red));
    EXPECT_EQ(surface.Grab().pixelColor(180, 50), QColor(Qt::white));
}

TEST_F(MovingPictures, ShowsWhatWasOutOfViewFromTheWholePicture) {
    surface.at = {4, QPointF(-500, 0)}; // the right half alone
    EXPECT_EQ(surface.Grab().pixelColor(10, 50), QColor(Qt::white));
    surface.Parts.clear();
    surface.at = {1, {}};
    EXPECT_EQ(surface.Grab().pixelColor(50, 50), QColor(Qt::red));
    EXPECT_TRUE(surface.Parts.empty());
    EXPECT_TRUE(surface.picture.IsMoving());
}

TEST_F(MovingPictures, IsPaintedAnewWhenItChangesOrTheViewDoes) {
    surface.Grab();
    surface.Parts.clear();
    surface.picture.Forget();
    surface.Grab();
    EXPECT_FALSE(surface.Parts.empty());
    surface.Parts.clear();
    surface.resize(220, 100);
    surface.Grab();
    EXPECT_FALSE(surface.Parts.empty());
}

} // namespace
} // namespace tarn

#pragma once

// What every test of the carpet estimate screen needs.

#include "estimate/EstimateTesting.h"
#include "screens/ControlNames.h"
#include "screens/ScreenTesting.h"
#include "screens/estimate/EstimateClient.h"
#include "screens/estimate/EstimateScreen.h"
#include "screens/estimate/PictureBox.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace tarn::testing {

/// An estimate screen on a project of some rooms.
struct EstimateScreenTest : FormTest<EstimateScreen> {
    EstimateScreenTest() { open.Now.Name = "MAPLE STREET 9"; }

    void Add(const Sized& room) { open.Now.Rooms.push_back(room.AsRoom()); }

    void Open(std::initializer_list<Sized> rooms, bool fromMenu = true) {
        for (const Sized& room : rooms) {
            Add(room);
        }
        form = std::make_unique<EstimateScreen>(session, fromMenu, quietly);
        ShowOnDisplay(*form);
    }

    QRadioButton& Option(const char* name) { return Control<QRadioButton>(name); }
    QLineEdit& Box(const char* name) { return Control<QLineEdit>(name); }
    QWidget& Panel() { return Control(Controls::choicePanel); }
    PictureBox& Picture() {
        return static_cast<PictureBox&>(Control<QAbstractScrollArea>(Controls::layoutPicture));
    }
    QWidget& Paper() { return *Picture().viewport(); }

    void PressOk() { Click(Button(Controls::acceptChoices)); }

    void PressPrint() {
        Click(Button(Controls::printEstimate));
        AwaitPrinter();
    }

    /// What the options screen makes of the request that it was handed.
    Estimate Searched() {
        SearchObserver nobody;
        return MakeEstimate(open.Now, screens.Request, nobody);
    }
    /// Do what the options screen does with the first of its options.
    void Search() {
        ASSERT_NE(screens.Client, nullptr);
        screens.Client->EstimateReady(Searched());
    }

    /// The carpet's lines on the page that PRINT makes now. The focus stays where it is.
    std::vector<std::string> PrintedCarpetLines() {
        const std::size_t before = printer.Estimates.size();
        Button(Controls::printEstimate).click();
        AwaitPrinter();
        if (printer.Estimates.size() != before + 1) {
            throw std::runtime_error("nothing was printed");
        }
        return printer.Estimates.back().CarpetLines;
    }

    /// Everything written on the picture, in its order.
    std::vector<std::string> Written() {
        std::vector<std::string> texts;
        for (const DrawingStep& step : Picture().Shown().Steps()) {
            if (step.What == DrawingStep::Kind::Text) {
                texts.push_back(step.Text);
            }
        }
        return texts;
    }
    int TimesWritten(const std::string& text) {
        const std::vector<std::string> texts = Written();
        return static_cast<int>(std::count(texts.begin(), texts.end(), text));
    }
    /// The first step that writes `text`.
    DrawingStep StepOf(const std::string& text) {
        for (const DrawingStep& step : Picture().Shown().Steps()) {
            if (step.Text == text) {
                return step;
            }
        }
        ADD_FAILURE() << text << " is not written";
        return {};
    }
    /// How many whole-width cuts the picture lists.
    int CutsListed() {
        const std::vector<std::string> texts = Written();
        return static_cast<int>(
            std::count_if(texts.begin(), texts.end(),
                          [](const std::string& text) { return text.starts_with("Cut"); }));
    }
    void ExpectNothingEstimated() {
        EXPECT_TRUE(Picture().Shown().Steps().empty());
        EXPECT_FALSE(Button(Controls::improveFills).isEnabled());
        EXPECT_TRUE(PrintedCarpetLines().empty());
    }

    /// What looks for a shorter layout after an estimate: nothing, unless a test says so.
    QuietSearch::Search quietly = [](const Estimate& estimate, const ImproveLimits&,
                                     ImproveObserver&) {
        return ImprovedEstimate{estimate, {}};
    };
};

} // namespace tarn::testing

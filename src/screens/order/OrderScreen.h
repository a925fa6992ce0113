#pragma once

#include "order/CarpetRequests.h"
#include "order/Order.h"
#include "screens/Screen.h"
#include "screens/order/OrderRun.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

class QBoxLayout;
class QLabel;
class QLayout;
class QMenu;
class QPushButton;
class QTabBar;

namespace tarn {

class ComparisonPanel;
class OrderChoicePanel;
class RollPanel;
class WrappingRow;
struct OrderDocument;
struct OrderFile;

/// What to buy and how to cut it, one carpet of the open project at a time: the choices, the
/// comparison of rolls and lays, and the roll and list of the row that is taken, the best or a
/// chosen one. The comparison is made away from the window, and starts by itself. Where the screen
/// is narrow its parts stand behind each other.
class OrderScreen : public Screen {
  public:
    /// Begins with `carpet`, a covering code, if that can be ordered; else with the lowest that
    /// can.
    OrderScreen(Session& session, std::optional<Byte> carpet);
    ~OrderScreen() override;

  protected:
    std::string_view GuidePage() const override { return GuidePages::order; }
    void OnCloseByFrame() override;
    void OnBodyRoom() override;
    QWidget* FirstFocus() override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    enum Part { Choices, Comparison, Roll };

    void Build();
    QBoxLayout* BuildTitle();
    QBoxLayout* BuildParts();
    QLayout* BuildButtons();
    void BuildFiles();
    void Connect();
    void SetTabOrder();
    void ShowTitle();
    void Arrange();
    void ShowPart(Part part);

    Units ShownUnits() const { return Shared().Project.Shown; }
    void Begin(std::optional<Byte> carpet);
    void OpenCarpet(Byte carpet);
    void ShowChoices();
    void NoteChoices();
    void Settle();
    void Compare();
    void Start(const OrderRequest& request);
    void TakeProgress(const Order& order);
    void TakeEnd(const std::exception_ptr& fault);
    void StopComparing();
    void DropComparison();

    /// Whether what is asked for now is what is compared.
    bool IsComparedRequest() const;
    std::optional<std::size_t> TakenRow() const;
    /// Whether there is an order to be printed and saved.
    bool HasTaken() const;
    void ChooseRow(std::size_t row);
    void ShowOrder();
    void ShowState();
    std::pair<std::string_view, bool> StateWords() const;
    void EnableButtons();
    void WithTaken(std::function<void(const OrderDocument&)> act);
    void PrintTaken();
    void SaveTaken(const OrderFile& file);
    void SaveProject();
    void Leave();

    Byte carpet_ = 0;
    std::variant<OrderRequest, OrderRequestFault> asked_; ///< the choices as they stand
    std::optional<OrderRequest> compared_; ///< those of the comparison that is shown, or made
    std::optional<Order> order_;           ///< as far as it is made
    std::optional<OrderCandidate> drawn_;  ///< whose roll is shown
    std::optional<std::size_t> chosen_;    ///< the row that was chosen instead of the best
    std::function<void()> afterRun_;       ///< what waits for the end of the search
    bool leavesAfterRun_ = false;          ///< that is to leave the screen in the end
    bool wasStopped_ = false;              ///< the comparison was ended before its time
    bool isWide_ = false;
    ComparisonPanel* comparison_ = nullptr;
    OrderChoicePanel* choices_ = nullptr;
    RollPanel* roll_ = nullptr;
    QBoxLayout* columns_ = nullptr;
    QWidget* results_ = nullptr; ///< comparison and roll
    QTabBar* tabs_ = nullptr;
    QLabel* state_ = nullptr;
    QLabel* title_ = nullptr;
    QLabel* unitsWarning_ = nullptr;
    WrappingRow* buttons_ = nullptr;
    QMenu* files_ = nullptr;
    QPushButton* compare_ = nullptr;
    QPushButton* stop_ = nullptr;
    QPushButton* print_ = nullptr;
    QPushButton* saveAs_ = nullptr;
    QPushButton* back_ = nullptr;
    std::unique_ptr<OrderRun> run_; ///< while a comparison is made; ends before what it tells
};

} // namespace tarn

#include "order/OrderSheet.h"

#include "base/Text.h"
#include "order/OrderWords.h"
#include "order/SheetFront.h"
#include "order/SheetList.h"
#include "order/SheetRoll.h"
#include "project/Coverings.h"

#include <iterator>
#include <string>

namespace tarn {

namespace {

/// What stands at the top of each page.
std::string HeadOf(const Project& project, const Order& order) {
    std::string head = OneLine(ShownText(project.Name));
    head += (head.empty() ? "" : ", ") + CoveringCaption(order.Carpet);
    if (order.Best) {
        head += ", " + OneLine(CandidateName(order, order.Candidates.at(*order.Best)));
    }
    return head;
}

void Add(std::vector<Drawing>& pages, std::vector<Drawing> more) {
    pages.insert(pages.end(), std::make_move_iterator(more.begin()),
                 std::make_move_iterator(more.end()));
}

} // namespace

std::vector<Drawing> OrderSheet(const Project& project, const std::vector<Order>& orders,
                                const SheetPaper& paper, std::string_view date) {
    std::vector<Drawing> pages;
    for (const Order& order : orders) {
        const std::string head = HeadOf(project, order);
        Add(pages, FrontPages(project, order, paper, head, date));
        if (order.Best) {
            const OrderCandidate& best = order.Candidates.at(*order.Best);
            Add(pages, RollPages(project, order, best, paper, head));
            Add(pages, ListPages(project, order, best, paper, head));
        }
    }
    NumberPages(pages, paper);
    return pages;
}

Drawing OrderPicture(const Project& project, const Order& order, const SheetPaper& paper,
                     std::string_view date) {
    Drawing picture;
    Double top = 0;
    for (const Drawing& page : OrderSheet(project, {order}, paper, date)) {
        picture.AddBox(0, top, paper.Width, top + paper.Height, DrawingColor::Gray);
        picture.Append(page, 0, top);
        top += paper.Height;
    }
    return picture;
}

} // namespace tarn

#include "order/SheetPage.h"

#include "base/Text.h"
#include "base/Words.h"
#include "order/SheetText.h"

namespace tarn {

namespace {

constexpr Double HeadSize = 9;
constexpr Double NumberRoom = 1400; ///< "1000 of 1000"
constexpr Double HeadHeight = 420;

} // namespace

SheetArea BodyOf(const SheetPaper& paper) {
    return {paper.Margin, paper.Margin + HeadHeight, paper.Width - paper.Margin,
            paper.Height - paper.Margin};
}

Drawing NewPage(const SheetPaper& paper, std::string_view head) {
    Drawing page;
    const SheetArea body = BodyOf(paper);
    page.AddText(body.Left, paper.Margin, ShortenedText(head, body.Width() - NumberRoom, HeadSize),
                 HeadSize);
    const Double rule = paper.Margin + HeightOfLine(HeadSize) + 4 * DrawnLineWidth;
    page.AddLine(body.Left, rule, body.Right, rule, DrawingColor::Gray, FineLine);
    return page;
}

void NumberPages(std::vector<Drawing>& pages, const SheetPaper& paper) {
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const std::string number = Words("%1 of %2", TrimStr(static_cast<Long>(i + 1)),
                                         TrimStr(static_cast<Long>(pages.size())));
        pages[i].AddText(paper.Width - paper.Margin - WidthOfText(number, HeadSize), paper.Margin,
                         number, HeadSize);
    }
}

Double AddLines(Drawing& page, const SheetArea& area, const std::vector<std::string>& lines,
                Double fontSize) {
    Double y = area.Top;
    for (const std::string& line : lines) {
        page.AddText(area.Left, y, line, fontSize);
        y += HeightOfLine(fontSize);
    }
    return y;
}

} // namespace tarn

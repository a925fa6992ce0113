#include "paper/ReportPages.h"

#include "files/QtText.h"

#include <QChar>
#include <QString>

#include <algorithm>

namespace tarn {

namespace {

using Characters = std::u32string;

/// A part of a line that is too short for words is not worth an indent.
constexpr std::size_t LeastContinuation = LeastPageColumns / 2;

Characters CharactersOf(std::string_view line) {
    Characters characters = ToQt(line).toStdU32String();
    characters.resize(characters.find_last_not_of(U' ') + 1); // nothing to break there
    return characters;
}

std::string Utf8(const Characters& characters) {
    const std::size_t end = characters.find_last_not_of(U' ') + 1;
    return QString::fromStdU32String(characters.substr(0, end)).toStdString();
}

bool IsMark(char32_t c) {
    const QChar::Category category = QChar::category(c);
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_SpacingCombining ||
           category == QChar::Mark_Enclosing;
}

/// How many of `rest` go into a line of `width`. The first `fixed` are columns, not words: no line
/// ends among them unless they do not fit.
std::size_t LineLength(const Characters& rest, std::size_t fixed, std::size_t width) {
    if (rest.size() <= width) {
        return rest.size();
    }
    const std::size_t blank = rest.rfind(U' ', width);
    if (blank != Characters::npos && blank > fixed) {
        return blank + 1; // a blank behind the last column is not seen
    }
    std::size_t length = width;
    const std::size_t least = fixed < width ? fixed + 1 : 1;
    while (length > least && IsMark(rest[length])) {
        --length; // an accent stays with its letter
    }
    return length;
}

/// A line of the report as lines of at most `columns` characters.
PaperPage Broken(const ReportLine& line, std::size_t columns) {
    Characters rest = CharactersOf(line.Text);
    const std::size_t indent = std::min(line.Remark, columns - LeastContinuation);
    PaperPage broken;
    std::size_t length = LineLength(rest, line.Remark, columns);
    broken.push_back({Utf8(rest.substr(0, length)), line.Remark});
    rest.erase(0, length);
    while (!rest.empty()) {
        length = LineLength(rest, 0, columns - indent);
        broken.push_back({std::string(indent, ' ') + Utf8(rest.substr(0, length)), indent});
        rest.erase(0, length);
    }
    return broken;
}

/// Collects lines into pages.
class Pager {
  public:
    explicit Pager(std::size_t lines)
        : lines_(lines) {}

    /// What pages after the first begin with.
    void Repeat(PaperPage heads) { heads_ = std::move(heads); }
    void Add(const PaperPage& group) {
        const std::size_t left = lines_ - pages_.back().size();
        const bool fitsOnNext = heads_.size() + group.size() <= lines_;
        if (group.size() > left && fitsOnNext) {
            Turn();
        }
        for (const ReportLine& line : group) {
            if (pages_.back().size() == lines_) {
                Turn();
            }
            pages_.back().push_back(line);
        }
    }
    std::vector<PaperPage> Pages() { return std::move(pages_); }

  private:
    void Turn() { pages_.push_back(heads_); }

    std::size_t lines_;
    PaperPage heads_;
    std::vector<PaperPage> pages_{PaperPage()};
};

} // namespace

std::vector<PaperPage> ReportPages(const EnteredDataReport& report, std::size_t columns,
                                   std::size_t lines) {
    columns = std::max(columns, LeastPageColumns);
    Pager pager(std::max(lines, LeastPageLines));
    pager.Add({ReportLine()});
    PaperPage heads;
    std::size_t number = 0;
    for (const ReportLine& line : report.Lines) {
        const PaperPage broken = Broken(line, columns);
        pager.Add(broken);
        ++number;
        if (number > ReportHeadingLines - ReportColumnHeadLines && number <= ReportHeadingLines) {
            heads.insert(heads.end(), broken.begin(), broken.end());
        }
        if (number == ReportHeadingLines && heads.size() < LeastPageLines) {
            pager.Repeat(heads);
        }
    }
    return pager.Pages();
}

} // namespace tarn

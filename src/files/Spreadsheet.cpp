#include "files/Spreadsheet.h"

#include "base/Text.h"
#include "base/Words.h"
#include "files/OutputFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <utility>
#include <xlsxwriter.h>

namespace tarn {

namespace {

void Require(lxw_error error) {
    if (error != LXW_NO_ERROR) {
        throw OutputFileError(Words("The spreadsheet cannot be made: %1", lxw_strerror(error)));
    }
}

void WriteCell(lxw_worksheet& sheet, lxw_row_t row, lxw_col_t column, const TableCell& cell) {
    if (const auto* text = std::get_if<std::string>(&cell)) {
        if (!text->empty()) {
            Require(worksheet_write_string(&sheet, row, column, ShownText(*text).c_str(), nullptr));
        }
    } else if (const auto* whole = std::get_if<std::int64_t>(&cell)) {
        Require(worksheet_write_number(&sheet, row, column, static_cast<double>(*whole), nullptr));
    } else if (const auto* number = std::get_if<double>(&cell)) {
        Require(worksheet_write_number(&sheet, row, column, *number, nullptr));
    }
}

void AddSheet(lxw_workbook& book, const ValueTable& table) {
    lxw_worksheet* sheet = workbook_add_worksheet(&book, table.Name.c_str());
    if (sheet == nullptr) {
        throw OutputFileError(Words("The spreadsheet cannot be made: no sheet %1.", table.Name));
    }
    lxw_format* bold = workbook_add_format(&book);
    format_set_bold(bold);
    for (std::size_t column = 0; column < table.Heads.size(); ++column) {
        Require(worksheet_write_string(sheet, 0, static_cast<lxw_col_t>(column),
                                       table.Heads[column].c_str(), bold));
    }
    worksheet_freeze_panes(sheet, 1, 0);
    lxw_row_t number = 0;
    for (const auto& row : table.Rows) {
        ++number;
        for (std::size_t column = 0; column < row.size(); ++column) {
            WriteCell(*sheet, number, static_cast<lxw_col_t>(column), row[column]);
        }
    }
}

/// Closes the book, which writes it, also when making it fails.
class Workbook {
  public:
    explicit Workbook(const std::string& path)
        : book_(workbook_new(path.c_str())) {
        if (book_ == nullptr) {
            throw OutputFileError(Words("The spreadsheet cannot be made: out of memory."));
        }
    }
    ~Workbook() {
        if (book_ != nullptr) {
            workbook_close(book_);
        }
    }
    Workbook(const Workbook&) = delete;
    Workbook& operator=(const Workbook&) = delete;

    lxw_workbook& Book() { return *book_; }
    void Close() { Require(workbook_close(std::exchange(book_, nullptr))); }

  private:
    lxw_workbook* book_;
};

} // namespace

std::string XlsxOf(const std::vector<ValueTable>& tables) {
    const QTemporaryDir folder; // the library writes to files alone
    const std::string path = folder.filePath(QStringLiteral("tables.xlsx")).toStdString();
    Workbook workbook(path);
    // The same tables give the same bytes.
    lxw_doc_properties properties{};
    properties.created = 1;
    Require(workbook_set_properties(&workbook.Book(), &properties));
    for (const ValueTable& table : tables) {
        AddSheet(workbook.Book(), table);
    }
    workbook.Close();
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly)) {
        throw OutputFileError(
            Words("The spreadsheet cannot be made: %1.", file.errorString().toStdString()));
    }
    return file.readAll().toStdString();
}

} // namespace tarn

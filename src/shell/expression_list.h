#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tessarondel {

struct ExpressionRecord {
    std::u16string Expression;
    std::u16string Result;

    friend bool operator==(const ExpressionRecord&, const ExpressionRecord&) = default;
};

// A row of the list: the ID column (the count when it was added) and the record.
struct ExpressionRow {
    std::u16string Id;
    ExpressionRecord Record;
};

// The expression list: rows stay in the order of adding and are only ever
// appended or cleared all at once.
class ExpressionList {
public:
    static constexpr const char16_t* kToolTip = u"Double Click will copy the selected expression to Input Area";

    std::int32_t ExpressionRowCount() const { return rowCount_; }
    const std::vector<ExpressionRow>& Rows() const { return rows_; }
    bool HasRows() const { return !rows_.empty(); }

    // 0-based row index of the selection; nothing is selected by adding.
    std::optional<std::size_t> SelectedRow() const { return selected_; }
    void SelectRow(std::optional<std::size_t> row);
    const ExpressionRow* SelectedRowData() const;

    void AddExpressionRow(ExpressionRecord record);
    void Clear();
    // The list of an earlier run: its newest records, the last one with ID `rowCount`.
    void Restore(std::int32_t rowCount, std::vector<ExpressionRecord> records);

private:
    std::int32_t rowCount_ = 0;
    std::vector<ExpressionRow> rows_;
    std::optional<std::size_t> selected_;
};

// The export: per row the expression, a TAB, the result and CR LF, in UTF-8,
// no header. Replaces the file. False when it can't be created or written;
// what was written by then stays.
bool WriteExpressionListText(const std::filesystem::path& file, const std::vector<ExpressionRow>& rows);

}  // namespace tessarondel

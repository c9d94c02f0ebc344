#include "shell/expression_list.h"

#include <fstream>

#include "engine/text_codec.h"
#include "numbers/number_text.h"
#include "numbers/text_rules.h"

namespace tessarondel {

void ExpressionList::SelectRow(std::optional<std::size_t> row) {
    if (row && *row >= rows_.size()) row.reset();
    selected_ = row;
}

const ExpressionRow* ExpressionList::SelectedRowData() const {
    if (!selected_) return nullptr;
    return &rows_[*selected_];
}

void ExpressionList::AddExpressionRow(ExpressionRecord record) {
    ++rowCount_;
    rows_.push_back({std::u16string(TrimBlanks(NumberText(rowCount_))), std::move(record)});
}

void ExpressionList::Clear() {
    rowCount_ = 0;
    rows_.clear();
    selected_.reset();
}

void ExpressionList::Restore(std::int32_t rowCount, std::vector<ExpressionRecord> records) {
    Clear();
    rowCount_ = rowCount - static_cast<std::int32_t>(records.size());
    for (ExpressionRecord& record : records) AddExpressionRow(std::move(record));
}

bool WriteExpressionListText(const std::filesystem::path& file, const std::vector<ExpressionRow>& rows) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    if (!out) return false;
    for (const ExpressionRow& row : rows) {
        out << ToUtf8(row.Record.Expression) << '\t' << ToUtf8(row.Record.Result) << "\r\n";
        if (!out) return false;
    }
    out.flush();
    return static_cast<bool>(out);
}

}  // namespace tessarondel

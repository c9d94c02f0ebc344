#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace tessarondel::testing_table {

// One line of a tab-separated table under tests/data: the first field names the row.
struct Row {
    std::vector<std::string> fields;
    // A field left off the end of the line is empty.
    std::string operator[](std::size_t i) const { return i < fields.size() ? fields[i] : std::string(); }
    // A number field, or `absent` when it is empty.
    int Int(std::size_t i, int absent = -1) const { return (*this)[i].empty() ? absent : std::stoi((*this)[i]); }
};

inline void PrintTo(const Row& row, std::ostream* out) { *out << row.fields.front(); }

// Fields may hold \t, \n, \r, \\ and \xHH; everything else is taken as written. A blank that ends
// a field is written \x20, so that no editor strips it.
inline std::string Unescape(const std::string& field) {
    std::string out;
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (field[i] != '\\' || i + 1 == field.size()) {
            out += field[i];
            continue;
        }
        const char c = field[++i];
        if (c == 'x') {
            out += static_cast<char>(std::stoi(field.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else {
            out += c == 't' ? '\t' : c == 'n' ? '\n' : c == 'r' ? '\r' : c;
        }
    }
    return out;
}

// The parts of a field that lists several things, " ; " between them; none in an empty field.
inline std::vector<std::string> Split(const std::string& field, const std::string& separator = " ; ") {
    std::vector<std::string> parts;
    for (std::size_t from = 0, end = 0; !field.empty() && end != std::string::npos; from = end + separator.size()) {
        end = field.find(separator, from);
        parts.push_back(field.substr(from, end - from));
    }
    return parts;
}

// Blank lines and lines starting with '#' are left out; a file that gives no rows fails the test run.
inline std::vector<Row> ReadTable(const std::string& name) {
    std::ifstream file(std::string(TESSARONDEL_TEST_DATA) + "/" + name);
    std::vector<Row> rows;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') continue;
        Row row;
        for (std::size_t start = 0, tab = 0; tab != std::string::npos; start = tab + 1) {
            tab = line.find('\t', start);
            row.fields.push_back(Unescape(line.substr(start, tab - start)));
        }
        rows.push_back(std::move(row));
    }
    if (rows.empty()) throw std::runtime_error("no rows in " + name);
    return rows;
}

// Test names from the first field.
inline std::string RowName(const ::testing::TestParamInfo<Row>& info) { return info.param.fields.front(); }

}  // namespace tessarondel::testing_table

// A kept session file that is missing, empty or bad starts an empty session;
// a bad one is moved aside whole, beside itself.
#include "services/history_file.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <fstream>
#include <sstream>

namespace tessarondel {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

const SessionHistory kSession{1, {{u"1+1", u"2"}}, 1, {u"2"}, {u"1+1"}, {}, SavedAnswer{2, u"2"}};

std::string Contents(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return (std::stringstream() << in.rdbuf()).str();
}

TEST(HistoryFile, BadFilesStartEmptyAndAreMovedAside) {
    const std::string good = FormatSessionHistory(kSession);
    const struct {
        const char* name;
        std::string bytes;
        std::uintmax_t size;  // grows the file to this size when not 0
        bool movedAside;
    } rows[] = {
        {"Missing", "", 0, false},
        {"Empty", "", 0, false},
        {"CutOff", good.substr(0, good.size() - 4), 0, true},
        {"OtherVersion", "Tessarondel history 2\nEnd\n", 0, true},
        {"Binary", "Tessarondel history 1\nInput\t\xff\x00\x01\nEnd\n"s, 0, true},
        {"Huge", good, kSessionHistoryMaxBytes + 1, true},
        {"BadEscape", "Tessarondel history 1\nInput\t\\q\nEnd\n", 0, true},
        {"RowNumbersWithAGap", "Tessarondel history 1\nRow\t1\ta\t0\nRow\t3\tb\t0\nEnd\n", 0, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        QTemporaryDir dir;
        const fs::path path = fs::path(dir.path().toStdString()) / "history";
        if (row.name != std::string("Missing")) std::ofstream(path, std::ios::binary) << row.bytes;
        if (row.size != 0) fs::resize_file(path, row.size);
        EXPECT_EQ(HistoryFile(path).Load(), SessionHistory{});
        const fs::path aside = fs::path(path.string() + ".bad");
        ASSERT_EQ(fs::exists(aside), row.movedAside);
        if (row.movedAside && row.size == 0) {
            EXPECT_EQ(Contents(aside), row.bytes);
        }
    }
}

TEST(HistoryFile, SavesForTheOwnerAloneAndReadsBack) {
    QTemporaryDir dir;
    const HistoryFile file(fs::path(dir.path().toStdString()) / "state/Tessarondel/history");
    ASSERT_TRUE(file.Save(kSession));
    EXPECT_EQ(fs::status(file.Path()).permissions() & fs::perms::all, fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(file.Load(), kSession);
    file.Remove();
    EXPECT_FALSE(fs::exists(file.Path()));
}

}  // namespace
}  // namespace tessarondel

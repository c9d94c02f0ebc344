// Saving the expression list as text.
#include <filesystem>
#include <fstream>

#include "customfunctions/temporary_folder.h"
#include "shell_fakes.h"

namespace tessarondel::testing {
namespace {

class ExpressionExport : public MainWindowTest {
protected:
    std::string SaveAs(const std::filesystem::path& file) {
        saveDialog.Answer = file.u16string();
        main.cmdlvOutput(3);
        return ReadBytes(file);
    }

    const TemporaryFolder temporary;
    const std::filesystem::path& folder = temporary.Path();
};

// An empty list gives an empty file; an old file is replaced.
TEST_F(ExpressionExport, RowsBecomeTabSeparatedUtf8LinesWithCrLf) {
    const std::filesystem::path file = folder / "list.txt";
    std::ofstream(file) << "old content\r\n";
    EXPECT_EQ(SaveAs(file), "");
    Enter(u"1+2");
    Enter(u"1/0");
    Enter(u"'caf\u00e9");
    EXPECT_EQ(SaveAs(file),
              "1+2\t3\r\n"
              "1/0\tError:The parameters of the functions or operators are invalid!\r\n"
              "'caf\xc3\xa9\tTessarondel Note Line\r\n");
    EXPECT_EQ(U8(saveDialog.Filters.at(0)), "Tessarondel Expression Text(*.txt)|*.txt");
}

TEST_F(ExpressionExport, CancellingTheDialogWritesNothing) {
    Enter(u"1");
    saveDialog.Answer = u"  ";
    main.cmdlvOutput(3);
    EXPECT_EQ(saveDialog.Filters.size(), 1u);
    EXPECT_TRUE(std::filesystem::is_empty(folder));
}

TEST_F(ExpressionExport, AFileThatCannotBeWrittenIsReportedAndTheListStays) {
    Enter(u"1+2");
    Enter(u"3*4");
    box.ExpectNotice(u"Unknown error occurred!", u"Error");
    SaveAs(folder / "missing-folder" / "list.txt");
    EXPECT_TRUE(box.AllShown());
    ASSERT_EQ(main.Expressions().Rows().size(), 2u);
    EXPECT_EQ(U8(main.Expressions().Rows()[1].Record.Result), "12");
    EXPECT_EQ(SaveAs(folder / "list.txt"), "1+2\t3\r\n3*4\t12\r\n");
}

}  // namespace
}  // namespace tessarondel::testing

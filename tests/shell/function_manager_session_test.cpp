// The Custom Function Manager inside the shell: its documents on disk, its
// insertion into the main window's input and its option box.
#include <filesystem>

#include "customfunctions/function_manager_model.h"
#include "customfunctions/temporary_folder.h"
#include "shell/function_manager_host.h"
#include "shell_fakes.h"

namespace tessarondel::testing {
namespace {

class FunctionManagerSession : public MainWindowTest {
protected:
    FunctionManagerSession() {
        WriteFunctionDocument(folder, {u"Hyp", u"a, b", u"s=a^2+b^2 ' squares\r\nsqrt(s)", u"Length"});
    }

    const TemporaryFolder temporary;
    const std::filesystem::path& folder = temporary.Path();
    FolderDocumentStore store{folder};
    ShellFunctionManagerHost host{main, box};
    FunctionManagerModel manager{engine, store, host};
};

TEST_F(FunctionManagerSession, ADocumentOnDiskIsCallableAndInsertsIntoTheInput) {
    manager.Load();
    main.EditInput(u"2*", 2, 0);
    manager.cmdInsert();
    EXPECT_EQ(InputText(), "2*Hyp()");
    EXPECT_EQ(main.Input().SelectionStart(), 6u);
    EXPECT_EQ(QuickReference(), "Function:Hyp(a, b)\r\nDescription:Length\r\n");
    main.EditInput(u"2*Hyp(3,4)", 10, 0);
    main.PressEnter();
    EXPECT_EQ(Display(), "10");
}

TEST_F(FunctionManagerSession, TheOptionBoxShowsTheManagerAndCloseUnchecksIt) {
    manager.Load();
    main.ClickCustomFunctions();
    EXPECT_TRUE(main.FunctionManagerVisible());
    manager.cmdClose();
    EXPECT_FALSE(main.FunctionManagerVisible());
    EXPECT_FALSE(main.Menus().Main[3].Checked);
}

TEST_F(FunctionManagerSession, SavingAndDeletingReachTheFolder) {
    manager.Load();
    manager.cmdNew();
    manager.SetFieldText(FunctionField::Name, u"Area");
    manager.SetFieldText(FunctionField::Parameters, u"w,h");
    manager.SetFieldText(FunctionField::Expression, u"w*h");
    manager.cmdOK();
    EXPECT_TRUE(std::filesystem::exists(folder / "Area.cfd"));

    manager.SelectRow(2);
    box.ExpectQuestion(u"Really removing the selected custom function: Area ?", u"Information", MessageAnswer::Yes);
    manager.cmdDelete();
    EXPECT_FALSE(std::filesystem::exists(folder / "Area.cfd"));
    EXPECT_TRUE(std::filesystem::exists(folder / "Hyp.cfd"));
}

}  // namespace
}  // namespace tessarondel::testing

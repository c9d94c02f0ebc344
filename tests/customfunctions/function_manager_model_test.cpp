// The Custom Function Manager: its states, Save in both forms, Cancel and
// Delete, through a document store and a host that the tests script.
#include "customfunctions/function_manager_model.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <map>

#include "engine/engine.h"
#include "engine/text_codec.h"
#include "memory_document_store.h"
#include "table_file.h"

namespace tessarondel {
namespace {

using testing::MemoryDocumentStore;

std::string U8(std::u16string_view text) { return ToUtf8(text); }

// Records the boxes as "text | title" and answers every question alike.
class RecordingHost final : public FunctionManagerHost {
public:
    void InsertFunction(std::u16string_view text) override { inserted.emplace_back(text); }
    void SetQuickReference(std::u16string) override {}
    void SetFunctionManagerOption(bool) override {}
    void ShowNotice(std::u16string_view text, std::u16string_view title) override {
        notices.push_back(U8(text) + " | " + U8(title));
    }
    bool Confirm(std::u16string_view text, std::u16string_view title) override {
        questions.push_back(U8(text) + " | " + U8(title));
        return answer;
    }

    bool answer = true;
    std::vector<std::u16string> inserted;
    std::vector<std::string> notices;
    std::vector<std::string> questions;
};

const CustomFunctionDocument kHyp{u"Hyp", u"a, b", u"s=a^2+b^2 ' squares\r\nsqrt(s)\r\n",
                                  u"Length of the hypotenuse\r\n"};
const CustomFunctionDocument kDouble{u"twice", u"n", u"2*n\r\n", u"Two times\r\nthe number\r\n"};

const std::string kDiscardQuestion = "Really don't save the changed information? | Information";

class FunctionManager : public ::testing::Test {
public:
    FunctionManager() {
        engine.ShowMessageBox = [this](const std::u16string& text, const std::u16string&) {
            engineBoxes.push_back(U8(text));
        };
    }

    void Load(std::vector<CustomFunctionDocument> documents) {
        store.loaded.documents = std::move(documents);
        manager.Load();
    }
    void Type(FunctionField field, std::u16string text) { manager.SetFieldText(field, std::move(text)); }
    std::string Evaluate(std::u16string_view text) { return U8(EvaluateText(engine, text)); }
    std::string Field(FunctionField field) const { return U8(manager.FieldText(field)); }

    EngineState engine;
    MemoryDocumentStore store;
    RecordingHost host;
    FunctionManagerModel manager{engine, store, host};
    std::vector<std::string> engineBoxes;
};

// --- The states ------------------------------------------------------------------

// List locks every box; New opens them all; Edit all but the name. Insert and
// Close are always on.
void ExpectControlsFor(const FunctionManagerModel& manager, ManagerState state) {
    const bool list = state == ManagerState::List;
    EXPECT_EQ(manager.State(), state);
    EXPECT_EQ(manager.Editing(), !list);
    EXPECT_EQ(manager.FieldLocked(FunctionField::Name), state != ManagerState::New);
    for (FunctionField field : {FunctionField::Parameters, FunctionField::Expression, FunctionField::Description}) {
        EXPECT_EQ(manager.FieldLocked(field), list);
    }
    for (ManagerButton button : {ManagerButton::Ok, ManagerButton::Cancel}) {
        EXPECT_EQ(manager.ButtonEnabled(button), !list);
    }
    for (ManagerButton button : {ManagerButton::New, ManagerButton::Edit, ManagerButton::Delete}) {
        EXPECT_EQ(manager.ButtonEnabled(button), list);
    }
    EXPECT_TRUE(manager.ButtonEnabled(ManagerButton::Insert));
    EXPECT_TRUE(manager.ButtonEnabled(ManagerButton::Close));
}

TEST_F(FunctionManager, LocksAndButtonsFollowTheStateAndCancelAsksFirst) {
    Load({kHyp});
    ExpectControlsFor(manager, ManagerState::List);
    manager.cmdNew();
    ExpectControlsFor(manager, ManagerState::New);
    host.answer = false;
    manager.cmdCancel();
    ExpectControlsFor(manager, ManagerState::New);
    host.answer = true;
    manager.cmdCancel();
    ExpectControlsFor(manager, ManagerState::List);
    manager.cmdEdit();
    ExpectControlsFor(manager, ManagerState::Edit);
    manager.cmdCancel();
    ExpectControlsFor(manager, ManagerState::List);
    EXPECT_EQ(host.questions, std::vector<std::string>(3, kDiscardQuestion));
}

// --- Sessions: tests/data/customfunctions/manager-sessions.tsv -------------------------

using testing_table::Row;
using testing_table::Split;

std::string Joined(const std::vector<std::string>& parts) {
    std::string joined;
    for (const std::string& part : parts) joined += (joined.empty() ? "" : " + ") + part;
    return joined;
}
std::string YesNo(bool value) { return value ? "yes" : "no"; }
FunctionField FieldNamed(const std::string& name) {
    const std::map<std::string, FunctionField> fields = {{"Name", FunctionField::Name},
                                                         {"Parameters", FunctionField::Parameters},
                                                         {"Expression", FunctionField::Expression},
                                                         {"Description", FunctionField::Description}};
    return fields.at(name);
}
ManagerButton ButtonNamed(const std::string& name) {
    return name == "Edit" ? ManagerButton::Edit : name == "Delete" ? ManagerButton::Delete : ManagerButton::New;
}

class ManagerSession : public FunctionManager, public ::testing::WithParamInterface<Row> {
protected:
    // One command: a verb, a blank and its argument.
    void Run(const std::string& step) {
        const std::size_t blank = step.find(' ');
        const std::string verb = step.substr(0, blank), text = blank == std::string::npos ? "" : step.substr(blank + 1);
        const auto number = [&](std::size_t part = 0) { return std::stoi(Split(text, " ").at(part)); };
        const std::map<std::string, std::function<void()>> verbs = {
            {"load",
             [&] {
                 std::vector<CustomFunctionDocument> documents;
                 for (const std::string& name : Split(text, " ")) documents.push_back(name == "Hyp" ? kHyp : kDouble);
                 Load(documents);
             }},
            {"unreadable", [&] { store.loaded.failed = true; }},
            {"failwrites", [&] { store.failWrites = true; }},
            {"faildeletes", [&] { store.failDeletes = true; }},
            {"answer", [&] { host.answer = text == "yes"; }},
            {"forget", [&] { engine.CustomFunctionTable.Deallocate(), engine.CustomFunctionNames.clear(); }},
            {"new", [&] { manager.cmdNew(); }},
            {"edit", [&] { manager.cmdEdit(); }},
            {"ok", [&] { manager.cmdOK(); }},
            {"delete", [&] { manager.cmdDelete(); }},
            {"insert", [&] { manager.cmdInsert(); }},
            {"doubleclick", [&] { manager.DoubleClickList(); }},
            {"select", [&] { manager.SelectRow(number()); }},
            {"click", [&] { manager.ClickList(); }},
            {"resize", [&] { manager.Resize(number()); }},
            {"fit", [&] { manager.FitHeights(number(), number(1)); }},
            {"type",
             [&] { Type(FieldNamed(text.substr(0, text.find(' '))), ToUtf16(text.substr(text.find(' ') + 1))); }},
        };
        verbs.at(verb)();
    }

    // What the manager shows under one name; a name may take an argument after a blank.
    std::string Shown(const std::string& probe) {
        const std::size_t blank = probe.find(' ');
        const std::string name = probe.substr(0, blank),
                          argument = blank == std::string::npos ? "" : probe.substr(blank + 1);
        std::vector<std::string> rows, descriptions, menu, inserted, deleted;
        for (const FunctionListRow& row : manager.Rows())
            rows.push_back(U8(row.Name)), descriptions.push_back(U8(row.Description));
        for (const auto& item : manager.FunctionMenu()) menu.push_back(U8(item.Caption));
        for (const auto& text : host.inserted) inserted.push_back(U8(text));
        for (const auto& text : store.deleted) deleted.push_back(U8(text));
        const std::map<std::string, std::function<std::string()>> shown = {
            {"state",
             [&] {
                 return std::string(std::array{"List", "New", "Edit"}[int(manager.State())]);
             }},
            {"rows", [&] { return Joined(rows); }},
            {"description", [&] { return descriptions.at(std::stoul(argument)); }},
            {"menu", [&] { return Joined(menu); }},
            {"menutag", [&] { return U8(manager.FunctionMenu().at(std::stoul(argument)).Tag); }},
            {"document", [&] { return U8(manager.Documents().at(std::stoul(argument)).Name); }},
            {"count", [&] { return std::to_string(manager.FunctionCount()); }},
            {"evaluate", [&] { return Evaluate(ToUtf16(argument)); }},
            {"field", [&] { return Field(FieldNamed(argument)); }},
            {"enabled", [&] { return YesNo(manager.ButtonEnabled(ButtonNamed(argument))); }},
            {"written", [&] { return U8(store.written[ToUtf16(argument)].Expression); }},
            {"writtendescription", [&] { return U8(store.written[ToUtf16(argument)].Description); }},
            {"writes", [&] { return std::to_string(store.written.size()); }},
            {"deleted", [&] { return Joined(deleted); }},
            {"inserted", [&] { return Joined(inserted); }},
            {"notices", [&] { return Joined(host.notices); }},
            {"questions", [&] { return Joined(host.questions); }},
            {"engineboxes", [&] { return Joined(engineBoxes); }},
            {"errornumber", [&] { return std::to_string(engine.ErrorNumber); }},
            {"errorbox", [&] { return YesNo(engine.ShowErrorBox); }},
            {"height", [&] { return std::to_string(manager.Height()); }},
            {"detailsbutton", [&] { return YesNo(manager.DetailsButtonVisible(std::stoi(argument))); }},
        };
        return shown.at(name)();
    }
};

TEST_P(ManagerSession, ShowsWhatTheCommandsLeave) {
    const Row& row = GetParam();
    for (const std::string& step : Split(row[1])) Run(step);
    for (const std::string& expected : Split(row[2])) {
        const std::size_t equals = expected.find('=');
        EXPECT_EQ(Shown(expected.substr(0, equals)), expected.substr(equals + 1)) << expected.substr(0, equals);
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, ManagerSession,
                         ::testing::ValuesIn(testing_table::ReadTable("customfunctions/manager-sessions.tsv")),
                         testing_table::RowName);

}  // namespace
}  // namespace tessarondel

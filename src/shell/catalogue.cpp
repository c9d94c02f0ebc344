#include "shell/catalogue.h"

#include "numbers/text_rules.h"

namespace tessarondel {
namespace {

Menu CaptionsMenu(std::initializer_list<const char16_t*> captions) {
    Menu menu;
    for (const char16_t* caption : captions) menu.push_back({caption, u""});
    return menu;
}

Menu FunctionMenu(const FunctionGroup& group) {
    Menu menu;
    for (const FunctionCatalogueEntry& entry : group.Entries) {
        std::u16string name = entry.Name;
        menu.push_back({name, name == u"-" ? std::u16string(u"-") : FunctionTag(entry)});
    }
    return menu;
}

Menu ConstantMenu(const ConstantGroup& group) {
    Menu menu;
    for (const ConstantCatalogueEntry& entry : group.Entries) menu.push_back({entry.Caption, entry.Tag});
    return menu;
}

}  // namespace

std::u16string FunctionTag(const FunctionCatalogueEntry& entry) {
    std::u16string tag = u"Function:";
    tag += TrimBlanks(entry.Signature);
    tag += u"\r\nDescription:";
    tag += TrimBlanks(entry.Description);
    return tag;
}

CatalogueMenus initMenu() {
    CatalogueMenus menus;
    const auto functionGroups = BuiltInFunctionCatalogue();
    for (std::size_t i = 0; i < functionGroups.size(); ++i) {
        menus.FunctionGroups.push_back({functionGroups[i].Caption, u""});
        menus.Functions[i] = FunctionMenu(functionGroups[i]);
    }
    const auto constantGroups = ConstantCatalogue();
    for (std::size_t i = 0; i < constantGroups.size(); ++i) {
        menus.ConstantGroups.push_back({constantGroups[i].Caption, u""});
        menus.Constants[i] = ConstantMenu(constantGroups[i]);
    }
    menus.ClearOther =
        CaptionsMenu({u"Clear Expression List", u"Clear Variables List", u"Clear History List", u"-", u"Clear All"});
    menus.Information = CaptionsMenu({u"Readme", u"Changes", u"-", u"Bug report", u"Suggest a feature", u"-",
                                      u"Tessarondel Home Page", u"Check New", u"-", u"About"});
    menus.Main = CaptionsMenu({u"Show/Hide Tessarondel", u"-", u"Variable List", u"Custom Function Manager", u"-",
                               u"Options...", u"About", u"-", u"Exit"});
    return menus;
}

}  // namespace tessarondel

#pragma once

#include <array>
#include <span>
#include <string>

#include "shell/menu_item.h"

namespace tessarondel {

// The built-in functions and the constants as the menus offer them. A name or
// caption "-" is a separator.
struct FunctionCatalogueEntry {
    const char16_t* Name;
    const char16_t* Signature;
    const char16_t* Description;
};

struct FunctionGroup {
    const char16_t* Caption;
    std::span<const FunctionCatalogueEntry> Entries;
};

struct ConstantCatalogueEntry {
    const char16_t* Caption;
    const char16_t* Tag;  // the text that is inserted, digit for digit
};

struct ConstantGroup {
    const char16_t* Caption;
    const char16_t* Header;  // first line of the Quick Reference
    std::span<const ConstantCatalogueEntry> Entries;
};

std::span<const FunctionGroup> BuiltInFunctionCatalogue();
// Index 4 of the constants menu is a separator, so the groups are 0 to 3 and 5;
// the group at index 4 has the caption "-" and no entries.
std::span<const ConstantGroup> ConstantCatalogue();
inline constexpr int kCustomConstantGroup = 5;

// The menus that initMenu builds once; their items carry the data as tags.
struct CatalogueMenus {
    Menu FunctionGroups;            // mnuBIFuns
    std::array<Menu, 4> Functions;  // mnuBIFuns0..3
    Menu ConstantGroups;            // mnuConst
    std::array<Menu, 6> Constants;  // mnuConst0..3 and 5; 4 stays empty
    Menu ClearOther;                // mnuCO
    Menu Information;               // mnuInformation
    Menu Main;                      // mnuMain, the tray's pop-up
};

CatalogueMenus initMenu();

// "Function:" signature CR LF "Description:" description, both trimmed.
std::u16string FunctionTag(const FunctionCatalogueEntry& entry);

}  // namespace tessarondel

#pragma once

namespace tessarondel {

// Captions and tool tips of the main window's controls that carry no logic.
struct ControlText {
    const char16_t* Caption;
    const char16_t* ToolTip;
};

inline constexpr ControlText kEvaluateButton{u"", u"Evaluate the expression"};
inline constexpr ControlText kResultListButton{u"Ans", u"Result List"};
inline constexpr ControlText kClearInputButton{u"C", u"Clear Input Expression"};
inline constexpr ControlText kClearOtherButton{u"", u"Clear others..."};
inline constexpr ControlText kMoreConstantsButton{u"More>>", u""};
inline constexpr ControlText kBuiltInFunctionsButton{u"Built-In Functions", u""};
inline constexpr ControlText kCustomFunctionsButton{u"Custom Functions", u""};
inline constexpr ControlText kCopyResultImage{u"", u"Copy the result to Clipboard"};
inline constexpr ControlText kPasteImage{u"", u"Paste from Clipboard"};
inline constexpr ControlText kLastAnswerLabel{u"Last Ans", u"The last answer"};
inline constexpr ControlText kOptionButton{u"", u"Options..."};
inline constexpr ControlText kHelpButton{u"", u"Help for Tessarondel"};
inline constexpr ControlText kAboutButton{u"", u"Information..."};
inline constexpr ControlText kExitButton{u"", u"Close Tessarondel"};
inline constexpr ControlText kLogoImage{u"", u"Larkmoor Tessarondel"};
inline constexpr ControlText kQuickReferenceBox{u"", u"Quick Reference"};
inline constexpr const char16_t* kInputAreaEmptyToolTip = u"Input Area - Please input expression here";

inline constexpr const char16_t* kExpressionListColumns[3] = {u"ID", u"Expression", u"Result"};
inline constexpr const char16_t* kExpressionListButtonToolTips[4] = {
    u"Insert the selected expression to Input Area", u"Clear the Expression List",
    u"Copy the selected item to clipboard", u"Save the Expression List to file..."};
inline constexpr const char16_t* kOptionToolTips[5] = {u"Expression List", u"Variable List", u"Custom Function Manager",
                                                       u"Input Panel", u"Stay on top"};
inline constexpr const char16_t* kQuickReferenceButtonToolTips[2] = {u"Hide Quick Reference", u"Show Quick Reference"};
inline constexpr const char16_t* kVariableListColumns[2] = {u"Name", u"Value"};

}  // namespace tessarondel

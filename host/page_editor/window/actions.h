#pragma once

namespace page_editor {

class EditorWindow;

/// Gives a window its menus and its tool bar. Each action is named as in the table of
/// actions.cpp: "undo".
void AddActions(EditorWindow& window);

}  // namespace page_editor

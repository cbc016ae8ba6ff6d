#pragma once

namespace varnoke {

/// The scope of a signing run; a wider one includes the narrower ones.
enum Scope : int { kScopeCurrent = 1, kScopeOpened = 2, kScopeAll = 3 };
constexpr int kScopeCount = 3;

/// State of the boxes, narrowest scope first.
struct ScopeState {
    bool enabled[kScopeCount];
    bool checked[kScopeCount];
};

/// How the boxes show a scope; a value that is no scope shows as the current document.
ScopeState ScopeBoxes(int scope);

/// The scope after a click on the box of a scope, which is now checked or not.
int ScopeAfterClick(int clicked, bool checked);

/// The scope that the boxes say: the widest checked one, the current document when none is.
int ChosenScope(bool openedChecked, bool allChecked);

} // namespace varnoke

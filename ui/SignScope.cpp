#include "ui/SignScope.h"

namespace varnoke {

ScopeState ScopeBoxes(int scope) {
    if (scope < kScopeCurrent || scope > kScopeAll) scope = kScopeCurrent;
    ScopeState boxes;
    for (int box = kScopeCurrent; box <= kScopeAll; ++box) {
        boxes.enabled[box - 1] = box >= scope;
        boxes.checked[box - 1] = box <= scope;
    }
    return boxes;
}

int ScopeAfterClick(int clicked, bool checked) {
    if (clicked == kScopeCurrent || checked) return clicked;
    return clicked - 1;
}

int ChosenScope(bool openedChecked, bool allChecked) {
    if (allChecked) return kScopeAll;
    return openedChecked ? kScopeOpened : kScopeCurrent;
}

} // namespace varnoke

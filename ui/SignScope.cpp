// A box that a wider scope includes is checked and disabled.
#include "ui/SignScope.h"

namespace varnoke {

SScopeBoxes ScopeBoxes(int scope) {
    if (scope < kScopeCurrent || scope > kScopeAll) scope = kScopeCurrent;
    SScopeBoxes boxes;
    for (int box = kScopeCurrent; box <= kScopeAll; ++box) {
        boxes.m_abEnabled[box - 1] = box >= scope;
        boxes.m_abChecked[box - 1] = box <= scope;
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

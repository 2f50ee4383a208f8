#pragma once

namespace orvinel {

// Makes screen readers take MenuCaption for a menu item, frmPopupMenu for a menu, MenuBar for a menu bar and
// TabHeader for a tab. To be called before the first of them is made; once is enough, more do no harm.
void installPanelAccessibility();

} // namespace orvinel

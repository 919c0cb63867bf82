#include "tooltips/clear_tooltips.h"

namespace tooltips {

void Clear_Tooltips(presentation::Arrangement& arrangement) {
  for (int i = 0; i < presentation::box_count; ++i) {
    arrangement.Box_Caption_Lbl[i].ToolTipText = "";
    arrangement.Box_Lbl[i].ToolTipText = "";
  }
}

}  // namespace tooltips

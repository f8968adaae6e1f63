// The forms that the editor asks the main window for.
#include "forms/frmMapsP.h"
#include "forms/frmStart.h"

namespace landsmith {

void frmStart::ShowMapProperties(std::size_t map) {
  if (map >= m_session.project.Maps.size()) return;
  frmMapsP form(m_session, *m_editor, this);
  form.ShowMap(map);
  form.exec();
  RefreshUi();
}

}  // namespace landsmith

// The forms that stand beside the canvas or belong to one kind of item.
#include "forms/frmLinesP.h"
#include "forms/frmPolysP.h"
#include "forms/frmStart.h"

namespace landsmith {

namespace {

/// Shows the properties of one line or polygon, or of all selected ones. The walk that the user may ask for
/// there begins when the form no longer covers the canvas.
template <class Form>
void RunProperties(Form& form, std::optional<std::size_t> item, Editor& editor) {
  if (item)
    form.ShowOne(*item);
  else
    form.ShowMany();
  form.exec();
  if (form.Walk()) editor.StartWalk(*form.Walk());
}

}  // namespace

void frmStart::ShowLineProperties(std::optional<std::size_t> line) {
  frmLinesP form(m_session, m_editor->Canvas(), this);
  RunProperties(form, line, *m_editor);
  RefreshUi();
}

void frmStart::ShowPolyProperties(std::optional<std::size_t> poly) {
  frmPolysP form(m_session, m_editor->Canvas(), this);
  RunProperties(form, poly, *m_editor);
  RefreshUi();
}

}  // namespace landsmith

#include "wiring/Importers.h"

#include "import/BlnFile.h"

namespace landsmith {

const std::vector<Importer>& Importers() {
  static const std::vector<Importer> importers{
      {"lsx", "mnuFAppend", "Landsmith Imp/Exp (*.LSX)|*.LSX", "Landsmith: Append Project",
       &AppSettings::AppendDir, nullptr},
      {"bln", "mnuFASurfer", "Surfer File (*.BLN)|*.BLN", "Landsmith: Append Surfer File",
       &AppSettings::SurferDir, ImportBLN},
      {"mp", "mnuFAPolish", "Polish Map File (*.MP)|*.MP", "Landsmith: Append Polish Map File",
       &AppSettings::PolishDir, nullptr},
      {"lwm", "mnuFALWMBGL", "LWM BGL File (*.BGL)|*.BGL", "Landsmith: Append LWM BGL File",
       &AppSettings::LWMDir, nullptr},
      {"vtp", "mnuFAVTPBGL", "VTP BGL File (*.BGL)|*.BGL", "Landsmith: Append VTP BGL File",
       &AppSettings::VTPDir, nullptr},
  };
  return importers;
}

}  // namespace landsmith

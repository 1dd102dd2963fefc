#include "OrnDialog.h"

namespace ORNGUI {

OrnDialog::OrnDialog(QWidget* pParent) : QDialog(pParent)
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

}  // namespace ORNGUI

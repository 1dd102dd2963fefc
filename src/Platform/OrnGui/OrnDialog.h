#pragma once

#include "OrnGuiGlobal.h"

#include <QDialog>

namespace ORNGUI {

/// Base of the client's dialogs: a dialog without the context-help button.
class ORNGUI_EXPORT OrnDialog : public QDialog {
    Q_OBJECT

public:
    /// Makes a dialog.
    /// @param pParent widget under the dialog, or null for one on its own
    explicit OrnDialog(QWidget* pParent = nullptr);
};

}  // namespace ORNGUI

#pragma once

#include "OrnGuiGlobal.h"

#include <QDialog>

namespace ORNGUI {

/// Base of the client's dialogs: a dialog without the context-help button.
class ORNGUI_EXPORT OrnDialog : public QDialog {
    Q_OBJECT

public:
    /// Creates a dialog.
    /// @param pParent parent widget, or null for a dialog without one
    explicit OrnDialog(QWidget* pParent = nullptr);
};

}  // namespace ORNGUI

#pragma once

#include "OrnGuiGlobal.h"

#include <QDialog>

namespace ORNGUI {

/// Base of the client's dialogs: a dialog without the context-help button.
class ORNGUI_EXPORT OrnDialog : public QDialog {
    Q_OBJECT

public:
    /// A dialog over @p pParent, or on its own when it is null.
    explicit OrnDialog(QWidget* pParent = nullptr);
};

}  // namespace ORNGUI

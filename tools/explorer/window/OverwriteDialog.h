#pragma once

#include <QDialog>

#include <nlohmann/json_fwd.hpp>

namespace explorer {

struct Unentered;

/// Asks before a write sends values that the user has not entered. Shows the values of the server beside those to be
/// sent.
class OverwriteDialog : public QDialog {
    Q_OBJECT

public:
    /// @param present null if unknown
    /// @param why why the present values are unknown; empty if they are known
    OverwriteDialog(const QString& call, const nlohmann::json& present, const nlohmann::json& sent,
                    const Unentered& unentered, const QString& why, QWidget* pParent = nullptr);
};

/// Whether the write would change a value on the server that the user has not entered.
[[nodiscard]] bool OverwritesUnseen(const nlohmann::json& present, const nlohmann::json& sent,
                                    const Unentered& unentered);

}  // namespace explorer

#pragma once

#include <QDialog>

#include <nlohmann/json_fwd.hpp>

namespace explorer {

struct Unentered;

/// Asks before a write that sends values which the user has not entered: the values of the server beside those that
/// are sent.
class OverwriteDialog : public QDialog {
    Q_OBJECT

public:
    /// @param present null when it is not known
    /// @param why the present values are not known; empty when they are
    OverwriteDialog(const QString& call, const nlohmann::json& present, const nlohmann::json& sent,
                    const Unentered& unentered, const QString& why, QWidget* pParent = nullptr);
};

/// Whether the write changes anything on the server that the user has not entered.
[[nodiscard]] bool OverwritesUnseen(const nlohmann::json& present, const nlohmann::json& sent,
                                    const Unentered& unentered);

}  // namespace explorer

#pragma once

#include "../core/Runner.h"

#include <catalogue/Merge.h>

#include <nlohmann/json.hpp>

#include <QObject>

#include <functional>

namespace explorer {

class ArgumentForm;
struct Unentered;

/// Reads the values that a write replaces, to fill the form with them, and to show them before values are sent that the
/// user has not entered.
class WriteGuard : public QObject {
    Q_OBJECT

public:
    /// @param form the source of the orders; it and @p runner must outlive the guard
    WriteGuard(ArgumentForm& form, Runner& runner, QWidget* pWindow);

    /// The name of the read that can fill in a call; empty for none.
    [[nodiscard]] static QString ReadFor(const catalogue::Call& call);

    /// Runs the read that matches a write, and fills the form with its record.
    void Fill(const RunOrder& write);

    /// Calls @p proceed at once if the user has entered all values to be sent; otherwise when the user agrees.
    void Check(const RunOrder& write, const std::function<void()>& proceed);

    /// The server has changed: all values count as not entered.
    void Forget();

signals:
    void Message(const QString& text);

private:
    /// The values that a write replaces, or why they are unknown.
    struct Present {
        nlohmann::json value;  ///< null if unknown
        QString why;
    };

    void Read(const RunOrder& write, const catalogue::MatchingRead& read,
              const std::function<void(const Present&)>& then);
    void Ask(const RunOrder& write, const std::function<void()>& proceed, const Unentered& unentered,
             const nlohmann::json& present, const nlohmann::json& sent, const QString& why);

    ArgumentForm& m_form;
    Runner& m_runner;
    QWidget* m_pWindow;
    bool m_bBusy = false;  // is reading or asking
};

}  // namespace explorer

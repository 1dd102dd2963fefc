#pragma once

#include "../core/Runner.h"

#include <catalogue/Merge.h>

#include <nlohmann/json.hpp>

#include <QObject>

#include <functional>

namespace explorer {

class ArgumentForm;
struct Unentered;

/// Reads what a write replaces: to fill the form with it, and to show it before values are sent that the user has not
/// entered.
class WriteGuard : public QObject {
    Q_OBJECT

public:
    /// @param form that the orders come from; it and @p runner must outlive the guard
    WriteGuard(ArgumentForm& form, Runner& runner, QWidget* pWindow);

    /// The name of the read that can fill in a call; empty for none.
    [[nodiscard]] static QString ReadFor(const catalogue::Call& call);

    /// Runs the matching read of a write, and fills the form with what it returns.
    void Fill(const RunOrder& write);

    /// Calls @p proceed at once when nothing is sent that the user has not entered; otherwise when the user agrees.
    void Check(const RunOrder& write, const std::function<void()>& proceed);

    /// Values were entered for another server: nothing has been entered for this one.
    void Forget();

signals:
    void Message(const QString& text);

private:
    /// What a write replaces, or why that is not known.
    struct Present {
        nlohmann::json value;  ///< null when it is not known
        QString why;
    };

    void Read(const RunOrder& write, const catalogue::MatchingRead& read,
              const std::function<void(const Present&)>& then);
    void Ask(const RunOrder& write, const std::function<void()>& proceed, const Unentered& unentered,
             const nlohmann::json& present, const nlohmann::json& sent, const QString& why);

    ArgumentForm& m_form;
    Runner& m_runner;
    QWidget* m_pWindow;
    bool m_bBusy = false;  // reads or asks
};

}  // namespace explorer

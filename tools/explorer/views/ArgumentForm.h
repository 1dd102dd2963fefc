#pragma once

#include "ValueEditor.h"

#include <explorer/FieldFacts.h>

#include <nlohmann/json.hpp>

#include <QJsonObject>
#include <QWidget>

#include <string>
#include <utility>
#include <vector>

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QScrollArea;

namespace catalogue {
struct Call;
}

namespace explorer {

/// The arguments of a call as a form built from its description, or as JSON. Input is checked as it is typed.
class ArgumentForm : public QWidget {
    Q_OBJECT

public:
    explicit ArgumentForm(QWidget* pParent = nullptr);

    /// Shows the arguments of a call with default values.
    void SetCall(const catalogue::Call& call);

    [[nodiscard]] const catalogue::Call* Call() const { return m_pCall; }

    /// Shows facts of arguments and fields, including those of list elements that are added later. Values that the
    /// server would refuse are invalid.
    void Describe(const FactsByName& facts, const Completions& completions = {});

    /// The arguments by name. Invalid fields count as 0.
    [[nodiscard]] QJsonObject Arguments() const;
    /// Sets the values that fit the call; all others stay.
    void SetArguments(const QJsonObject& arguments, Origin origin = Origin::Unseen);
    /// The values that the user has not entered since the call was set. A path begins with the name of the argument.
    [[nodiscard]] Unentered NotEntered() const;
    /// Offers to fill the form from this read; an empty name hides the offer.
    void OfferRead(const QString& name);

    /// Whether there is a call and every field holds a valid value.
    [[nodiscard]] bool IsValid() const;

    /// Copies the arguments to the clipboard as a JSON object.
    void Copy();
    /// Fills the form from the clipboard. If the JSON is invalid, shows why and changes nothing.
    void Paste();

signals:
    void Changed();
    /// The user asked for the values of the server.
    void ReadRequested();

private:
    /// Shows the problem as a text with %1.
    bool Take(const QString& text, const QString& problem);
    void TakeJson();
    void ShowRefusal();
    void ShowJson();
    void ShowButtons();
    void ShowHint(const QString& text);
    void FillArea(QWidget* pContent);
    void OnChanged();
    void OrderTabs();
    void ShowFacts();

    const catalogue::Call* m_pCall = nullptr;
    std::vector<std::pair<std::string, ValueEditor*>> m_editors;
    FactsByName m_facts;
    Completions m_completions;
    QPushButton* m_pRead;
    QScrollArea* m_pArea;
    QPlainTextEdit* m_pJson;
    bool m_bJsonFits = true;
    bool m_bTakesJson = false;
    QPushButton* m_pCopy;
    QPushButton* m_pPaste;
    QPushButton* m_pAsJson;
    QLabel* m_pProblem;
};

}  // namespace explorer

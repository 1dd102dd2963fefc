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

/// The arguments of a call as a form made of the call's description, or as JSON; checked as they are typed.
class ArgumentForm : public QWidget {
    Q_OBJECT

public:
    explicit ArgumentForm(QWidget* pParent = nullptr);

    /// Shows the arguments of a call with the values of fresh ones.
    void SetCall(const catalogue::Call& call);

    [[nodiscard]] const catalogue::Call* Call() const { return m_pCall; }

    /// Shows what is known of arguments and fields, those of list elements that are still to be added included. Values
    /// that the server would refuse are not valid.
    void Describe(const FactsByName& facts, const Completions& completions = {});

    /// Each argument under its name. Fields that are not valid count as 0.
    [[nodiscard]] QJsonObject Arguments() const;
    /// Takes over what fits the call; everything else stays as it is.
    void SetArguments(const QJsonObject& arguments, Origin origin = Origin::Unseen);
    /// What the user has not entered since the call was set. A place begins with the name of the argument.
    [[nodiscard]] Unentered NotEntered() const;
    /// Offers to take what a read returns; without a name it does not.
    void OfferRead(const QString& name);

    /// Whether there is a call and each field holds a value of its type.
    [[nodiscard]] bool IsValid() const;

    /// Puts the form on the clipboard as a JSON object.
    void Copy();
    /// Fills the form from the clipboard. What is wrong with it is shown, and then nothing changes.
    void Paste();

signals:
    void Changed();
    /// The values of the server are wanted.
    void ReadRequested();

private:
    /// Puts what does not fit into words of %1.
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

#pragma once

#include "ValueEditor.h"

#include <vector>

class QLabel;
class QPushButton;
class QToolButton;
class QVBoxLayout;

namespace explorer {

/// Edits a list: its elements can be added, removed and moved.
class ListEditor : public ValueEditor {
    Q_OBJECT

public:
    ListEditor(const catalogue::Type& type, const QString& name, QWidget* pParent);

    [[nodiscard]] nlohmann::json Value() const override;
    void SetValue(const nlohmann::json& value, Origin origin) override;
    void Collect(const std::string& place, Unentered& unentered) const override;
    [[nodiscard]] bool IsValid() const override;
    [[nodiscard]] QList<QWidget*> TabStops() const override;

private:
    struct Row {
        QWidget* pWidget;
        QLabel* pNumber;
        ValueEditor* pEditor;
        QToolButton* pUp;
        QToolButton* pDown;
        QToolButton* pRemove;
        bool isAdded = false;       // by the user
        std::size_t untouched = 0;  // untouched values of an element that was just added
    };

    void Append();
    void AddByUser();
    void Remove(const QWidget* pRow);
    void Move(const QWidget* pRow, int steps);
    void Number();
    [[nodiscard]] std::size_t IndexOf(const QWidget* pRow) const;

    /// The user has added, removed or moved elements.
    void Rearrange();

    const catalogue::Type& m_element;
    const QString m_name;
    std::vector<Row> m_rows;
    bool m_bEntered = false;  // whether the user added, removed or moved elements
    QVBoxLayout* m_pLayout;
    QLabel* m_pHint;
    QPushButton* m_pAdd;
};

}  // namespace explorer

#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <functional>

namespace testing_support {

/// Gives a number from 0 to the given one, both included.
using Choose = std::function<quint64(quint64 most)>;

/// The same numbers in every run with the same seed, which is printed.
Choose SeededChoice(quint64 seed);

/// Random JSON with a preference for the values at which conversions part: numbers at the limits of their types, texts
/// that look like numbers and flags.
class RandomJson {
public:
    explicit RandomJson(Choose choose);

    quint64 UpTo(quint64 most);
    bool OneIn(quint64 number);

    /// The object that @p make puts together with values of this generator: half of them as they were built, half
    /// parsed from text, for Qt stores the two differently.
    QJsonObject Document(const std::function<QJsonObject()>& make);

    /// A value of any type, within Document().
    QJsonValue Value(int nDepth = 2);

private:
    template <typename List>
    const auto& OneOf(const List& list);

    QJsonValue Number();
    QJsonValue BuiltNumber();
    QString WrittenNumber();
    QString Digits();
    QString Text();

    Choose m_choose;
    bool m_bParsed = false;
};

}  // namespace testing_support

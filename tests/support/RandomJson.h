#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <functional>

namespace testing_support {

/// Returns a number from 0 to @p most, inclusive.
using Choose = std::function<quint64(quint64 most)>;

/// Prints the seed. The same seed gives the same numbers in every run.
Choose SeededChoice(quint64 seed);

/// Random JSON that prefers values that conversions treat differently: numbers at the limits of their types, and texts
/// that look like numbers or booleans.
class RandomJson {
public:
    explicit RandomJson(Choose choose);

    quint64 UpTo(quint64 most);
    bool OneIn(quint64 number);

    /// Returns an object that @p make builds from values of this generator. Half of the objects are returned as built,
    /// the others are written and parsed again, because Qt stores the two differently.
    QJsonObject Document(const std::function<QJsonObject()>& make);

    /// A value of any type, for use within Document().
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

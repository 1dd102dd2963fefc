#include "Limits.h"

#include <QCoreApplication>
#include <QLocale>

namespace explorer {
namespace {

/// Translation context of the limits.
struct Limits {
    Q_DECLARE_TR_FUNCTIONS(explorer::Limits)
};

QString Number(double number)
{
    constexpr int kDigits = 15;
    return QString::number(number, 'g', kDigits);
}

}  // namespace

QString LimitsText(const FieldFacts& facts)
{
    QStringList limits = facts.values;
    if (facts.minimum) {
        limits.append(QStringLiteral("\u2265 ") + Number(*facts.minimum));
    }
    if (facts.maximum) {
        limits.append(QStringLiteral("\u2264 ") + Number(*facts.maximum));
    }
    return limits.join(QStringLiteral(", "));
}

QString LimitProblem(const FieldFacts& facts, const QString& text)
{
    const QString value = text.trimmed();
    if (!facts.values.isEmpty() && !facts.values.contains(value)) {
        return Limits::tr("Must be one of: %1").arg(facts.values.join(QStringLiteral(", ")));
    }
    const double number = QLocale::c().toDouble(value);
    if (facts.minimum && number < *facts.minimum) {
        return Limits::tr("Must be %1 or more").arg(Number(*facts.minimum));
    }
    if (facts.maximum && number > *facts.maximum) {
        return Limits::tr("Must be %1 or less").arg(Number(*facts.maximum));
    }
    return {};
}

}  // namespace explorer

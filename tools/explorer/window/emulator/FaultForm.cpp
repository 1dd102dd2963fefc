#include "FaultForm.h"
#include "../../views/Widgets.h"

#include <catalogue/Call.h>

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSpinBox>

#include <array>
#include <limits>
#include <utility>

namespace explorer {
namespace {

struct Kind {
    const char* name;
    const char* title;
    std::array<const char*, 3> details;  ///< the keys of its details
};

constexpr std::array kKinds{
    Kind{"delay", QT_TRANSLATE_NOOP("explorer::FaultForm", "Delayed reply"), {}},
    Kind{"status", QT_TRANSLATE_NOOP("explorer::FaultForm", "HTTP status"), {"status", "headers", "body"}},
    Kind{"envelope", QT_TRANSLATE_NOOP("explorer::FaultForm", "Envelope with a code"), {"code", "desc"}},
    Kind{"empty", QT_TRANSLATE_NOOP("explorer::FaultForm", "Empty reply"), {}},
    Kind{"cut", QT_TRANSLATE_NOOP("explorer::FaultForm", "First half of the body"), {}},
    Kind{"notJson", QT_TRANSLATE_NOOP("explorer::FaultForm", "Reply that is not JSON"), {}},
    Kind{"text", QT_TRANSLATE_NOOP("explorer::FaultForm", "Reply with this body"), {"body"}},
    Kind{"large", QT_TRANSLATE_NOOP("explorer::FaultForm", "Large reply"), {"size"}},
    Kind{"slow", QT_TRANSLATE_NOOP("explorer::FaultForm", "Slow reply"), {"bytesPerSecond"}},
    Kind{"closeBefore", QT_TRANSLATE_NOOP("explorer::FaultForm", "Connection closed without a reply"), {}},
    Kind{"closeMiddle", QT_TRANSLATE_NOOP("explorer::FaultForm", "Connection closed mid-reply"), {}},
    Kind{"reset", QT_TRANSLATE_NOOP("explorer::FaultForm", "Connection reset"), {}},
    Kind{"silent", QT_TRANSLATE_NOOP("explorer::FaultForm", "No reply"), {}}};

const Kind* FindKind(const QString& name)
{
    for (const Kind& kind : kKinds) {
        if (name == QLatin1String(kind.name)) {
            return &kind;
        }
    }
    return nullptr;
}

QSpinBox* NewNumber(const char* objectName, int least, int most, int value, const QString& suffix = {})
{
    auto* const pNumber = Named(new QSpinBox, objectName);
    pNumber->setRange(least, most);
    pNumber->setValue(value);
    pNumber->setSuffix(suffix);
    return pNumber;
}

QComboBox* NewChoice(const char* objectName)
{
    auto* const pChoice = Named(new QComboBox, objectName);
    pChoice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    constexpr int kShown = 20;
    pChoice->setMaxVisibleItems(kShown);
    return pChoice;
}

/// Parses headers such as "Retry-After: 9; Content-Type: text/html; charset=utf-8", which has two.
nlohmann::json HeadersIn(const QString& text)
{
    static const QRegularExpression betweenHeaders(QStringLiteral(";(?=[^;=]+:)"));
    nlohmann::json headers = nlohmann::json::object();
    const QStringList lines = text.split(betweenHeaders, Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const std::string name = line.section(QLatin1Char(':'), 0, 0).trimmed().toStdString();
        headers[name] = line.section(QLatin1Char(':'), 1).trimmed().toStdString();
    }
    return headers;
}

nlohmann::json ValueIn(const QString& key, const QWidget* pEditor)
{
    if (const auto* pNumber = qobject_cast<const QSpinBox*>(pEditor)) {
        return pNumber->value();
    }
    const QString text = static_cast<const QLineEdit*>(pEditor)->text();
    return key == QLatin1String("headers") ? HeadersIn(text) : nlohmann::json(text.toStdString());
}

}  // namespace

QString FaultTitle(const QString& kind)
{
    const Kind* const pKind = FindKind(kind);
    return pKind == nullptr ? kind : FaultForm::tr(pKind->title);
}

FaultForm::FaultForm(QWidget* pParent)
    : QWidget(pParent), m_pLayout(new QGridLayout(this)), m_pKind(NewChoice("faultKind")),
      m_pCall(NewChoice("faultCall")), m_pMethod(NewChoice("faultMethod")), m_pPath(Named(new QLineEdit, "faultPath")),
      m_pFirst(NewNumber("faultFirst", 1, std::numeric_limits<int>::max(), 1)),
      m_pTimes(NewNumber("faultTimes", 0, std::numeric_limits<int>::max(), 1)),
      m_pDelay(NewNumber("faultDelay", 0, 24 * 60 * 60 * 1000, 0, tr(" ms")))
{
    for (const Kind& kind : kKinds) {
        m_pKind->addItem(tr(kind.title), QLatin1String(kind.name));
    }
    m_pCall->addItem(tr("Every call"), QString());
    for (const catalogue::Call& call : catalogue::Calls()) {
        const QString name = QString::fromStdString(call.name);
        m_pCall->addItem(name, name);
    }
    m_pMethod->addItem(tr("Every method"), QString());
    for (const char* method : {"GET", "PUT", "POST", "DELETE"}) {
        m_pMethod->addItem(QLatin1String(method), QLatin1String(method));
    }
    m_pPath->setPlaceholderText(tr("Every path"));
    m_pPath->setToolTip(tr("Beginning of the request path, including the query"));
    m_pFirst->setToolTip(tr("With 2, the first matching call passes"));
    m_pTimes->setSpecialValueText(tr("Until removed"));

    m_pLayout->setContentsMargins(0, 0, 0, 0);
    m_pLayout->setColumnStretch(1, 1);
    m_pLayout->setColumnStretch(3, 1);
    AddRow(tr("Kind"), m_pKind, tr("Call"), m_pCall);
    AddRow(tr("Method"), m_pMethod, tr("Path"), m_pPath);
    AddRow(tr("Starts at match"), m_pFirst, tr("Times"), m_pTimes);
    AddField(tr("Delay"), m_pDelay, m_pLayout->rowCount(), 0);
    constexpr int kLargest = 1024 * 1024 * 1024;
    constexpr int kServiceUnavailable = 503;
    constexpr int kMegabyte = 1 << 20;
    constexpr int kSlow = 1024;
    AddDetail("status", tr("Status"), NewNumber("faultStatus", 200, 599, kServiceUnavailable));
    AddDetail("code", tr("Code"),
              NewNumber("faultCode", std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 0));
    AddDetail("size", tr("Size"), NewNumber("faultSize", 0, kLargest, kMegabyte, tr(" bytes")));
    AddDetail("bytesPerSecond", tr("Speed"), NewNumber("faultSpeed", 1, kLargest, kSlow, tr(" bytes/s")));
    AddDetail("desc", tr("Text"), Named(new QLineEdit, "faultDesc"));
    auto* const pHeaders = Named(new QLineEdit, "faultHeaders");
    pHeaders->setPlaceholderText(QStringLiteral("Retry-After: 9; Content-Type: text/html"));
    AddDetail("headers", tr("Headers"), pHeaders);
    AddDetail("body", tr("Body"), Named(new QLineEdit, "faultBody"));
    connect(m_pKind, qOverload<int>(&QComboBox::currentIndexChanged), this, &FaultForm::ShowDetails);
    ShowDetails();
}

void FaultForm::AddRow(const QString& leftText, QWidget* pLeft, const QString& rightText, QWidget* pRight)
{
    const int row = m_pLayout->rowCount();
    AddField(leftText, pLeft, row, 0);
    AddField(rightText, pRight, row, 2);
}

QLabel* FaultForm::AddField(const QString& text, QWidget* pEditor, int row, int column, int columns)
{
    auto* const pLabel = new QLabel(text);
    pLabel->setBuddy(pEditor);
    m_pLayout->addWidget(pLabel, row, column);
    m_pLayout->addWidget(pEditor, row, column + 1, 1, columns);
    return pLabel;
}

/// Numbers are beside the delay, texts on separate lines.
void FaultForm::AddDetail(const char* key, const QString& text, QWidget* pEditor)
{
    const bool isNumber = qobject_cast<QSpinBox*>(pEditor) != nullptr;
    constexpr int kRowOfTheDelay = 4;
    const int row = isNumber ? kRowOfTheDelay : m_pLayout->rowCount();
    m_details.append({key, AddField(text, pEditor, row, isNumber ? 2 : 0, isNumber ? 1 : 3), pEditor});
}

void FaultForm::ShowDetails()
{
    const Kind& kind = *FindKind(m_pKind->currentData().toString());
    for (const Field& field : std::as_const(m_details)) {
        bool isShown = false;
        for (const char* key : kind.details) {
            isShown = isShown || (key != nullptr && QLatin1String(key) == QLatin1String(field.key));
        }
        field.pLabel->setVisible(isShown);
        field.pEditor->setVisible(isShown);
    }
}

nlohmann::json FaultForm::Fault() const
{
    const auto chosen = [](const QComboBox* pChoice) { return pChoice->currentData().toString().toStdString(); };
    nlohmann::json fault{{"kind", chosen(m_pKind)},       {"operation", chosen(m_pCall)},
                         {"method", chosen(m_pMethod)},   {"path", m_pPath->text().trimmed().toStdString()},
                         {"skip", m_pFirst->value() - 1}, {"times", m_pTimes->value()},
                         {"delayMs", m_pDelay->value()}};
    for (const Field& field : m_details) {
        if (!field.pEditor->isHidden()) {
            fault[field.key] = ValueIn(QLatin1String(field.key), field.pEditor);
        }
    }
    return fault;
}

}  // namespace explorer

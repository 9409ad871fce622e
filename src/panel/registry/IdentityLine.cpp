#include "panel/registry/IdentityLine.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/IDictionary.h"
#include "catalogue/MethodParameters.h"
#include "panel/record/DatumFields.h"
#include "panel/record/PanelText.h"
#include "panel/record/ProjectionFields.h"
#include "platform/projection/IProjectionModule.h"

#include <QApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QStringList>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace {

constexpr int slice = 10; // milliseconds
constexpr int wait = 200; // milliseconds, behind a dialog

QString systemText(const RegistrySystem& system) {
    const QString text = PanelText::tr("EPSG:%1, %2").arg(QString(system.code), QString::fromUtf8(system.name));
    return system.deprecated && !system.name.contains("(deprecated)") ? PanelText::tr("%1 (deprecated)").arg(text)
                                                                      : text;
}

/// Rounded up to two digits, in millimetres.
QString distanceText(double metres) {
    const double millimetres = std::max(metres, RegistryMatch::exactly) * 1000;
    return QString::number(std::ceil(millimetres * 100 - 1e-6) / 100);
}

QString numberText(double value) {
    return std::isnan(value) ? PanelText::tr("none") : QString::number(value, 'f', QLocale::FloatingPointShortest);
}

/// "EPSG:25832", as the source begins that the registry's dialog writes.
QByteArray codeOf(const QByteArray& source) {
    static const QRegularExpression form("^\\s*EPSG:(\\d+)");
    return form.match(QString::fromUtf8(source)).captured(1).toUtf8();
}

/// The other systems of the list, by their codes.
QString otherCodes(const std::vector<RegistryMatch>& matches) {
    constexpr std::size_t most = 3;
    QStringList codes;
    for (std::size_t i = 1; i < std::min(matches.size(), most + 1); ++i)
        codes.append("EPSG:" + QString(matches[i].system->code));
    const int more = int(matches.size()) - 1 - codes.size();
    const QString text = codes.join(", ");
    return more > 0 ? PanelText::tr("%1 and %n more", nullptr, more).arg(text) : text;
}

} // namespace

IdentityLine::IdentityLine(QWidget* parent)
    : ResultLabel(PanelText::tr("In the registry"), parent), timer(new QTimer(this)) {
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::StrongFocus);
    setWordWrap(true);
    setAlignment(Qt::AlignTop | Qt::AlignLeft);
    // Nothing below moves; a longer text is in the tooltip.
    setFixedHeight(fontMetrics().lineSpacing() * 2);
    connect(timer, SIGNAL(timeout()), this, SLOT(_onTimeout()));
}

void IdentityLine::identify(const IDictionary& record, const QByteArray& definition) {
    namespace Key = CoordParamKey;
    const auto text = [&record](const char* key) { return QString::fromLocal8Bit(record.getValue(key)).toUtf8(); };
    const Identification::Subject wanted{definition, text(Key::datumName), text(Key::name), codeOf(text(Key::source))};
    IProjectionModule* const module = projectionModule();
    if (!module || (identification && wanted == subject))
        return;
    if (!identification)
        identification = std::make_unique<Identification>(*module);
    subject = wanted;
    fields = ProjectionFields::ofRecord(record);
    isStarted = false;
    showResult();
    if (isVisible())
        timer->start(0);
}

void IdentityLine::showEvent(QShowEvent* event) {
    ResultLabel::showEvent(event);
    timer->start(0);
}

void IdentityLine::hideEvent(QHideEvent* event) {
    timer->stop();
    ResultLabel::hideEvent(event);
}

void IdentityLine::_onTimeout() {
    if (!identification || subject.definition.isEmpty() || (isStarted && identification->isFinished()))
        return timer->stop();
    // Nobody reads it behind a dialog, where what is typed must not wait for it.
    const QWidget* const dialog = QApplication::activeModalWidget();
    const bool isBehind = dialog && !dialog->isAncestorOf(this);
    timer->setInterval(isBehind ? wait : 0);
    if (isBehind)
        return;
    if (!isStarted)
        identification->start(subject);
    isStarted = true;
    const bool wasSettled = identification->isSettled();
    if (identification->advance(slice))
        timer->stop();
    if (identification->isFinished() || identification->isSettled() != wasSettled)
        showResult();
}

bool IdentityLine::isSettled() const {
    return isStarted && identification->isSettled();
}

QByteArray IdentityLine::code() const {
    if (!isSettled() || !identification->isFinished() || identification->same().empty())
        return {};
    const RegistryMatch& first = identification->same().front();
    return reasonAgainstCode(first).isEmpty() ? first.system->code : QByteArray();
}

QString IdentityLine::codeRemark() const {
    if (!isSettled() || !identification->isFinished())
        return QString();
    if (identification->same().empty())
        return PanelText::tr("The record is no system of the registry.");
    const RegistryMatch& first = identification->same().front();
    const QString reason = reasonAgainstCode(first);
    if (!reason.isEmpty())
        return reason;
    const QString text = systemText(*first.system);
    return first.definition->datum.isEmpty() ? PanelText::tr("Says that this is %1.").arg(text)
                                             : PanelText::tr("Says that this is %1, on the datum %2.")
                                                   .arg(text, QString::fromUtf8(first.definition->datum));
}

QString IdentityLine::reasonAgainstCode(const RegistryMatch& match) const {
    const QByteArray& datum = match.definition->datum;
    if (!subject.datum.isEmpty() && qstricmp(subject.datum, datum) != 0)
        return datum.isEmpty() ? PanelText::tr("The registry leaves the datum open.")
                               : PanelText::tr("The registry's datum is %1.").arg(QString::fromUtf8(datum));
    if (match.definition->unit != 1)
        return PanelText::tr("The registry counts in %1, the record in metres.")
            .arg(QString::fromUtf8(projectionModule()->registry().unitName(match.system->code)));
    return match.distance > RegistryMatch::exactly ? PanelText::tr("The registry's figures differ a little.")
                                                   : QString();
}

void IdentityLine::showResult() {
    if (subject.definition.isEmpty())
        setText(QString());
    else if (!isSettled())
        setText(PanelText::tr("Looking through the EPSG registry..."));
    else
        setText(identification->same().empty() ? nearestText() : sameText());
    QStringList systems;
    if (isSettled()) {
        const bool isSame = !identification->same().empty();
        for (const RegistryMatch& match : isSame ? identification->same() : identification->nearest()) {
            // Of those that are only alike, as many as differ as little.
            if (isSame || match.differences.size() == identification->nearest().front().differences.size())
                systems.append(systemText(*match.system));
        }
    }
    constexpr int most = 20;
    if (systems.size() > most)
        systems = systems.mid(0, most) << "...";
    setToolTip(systems.isEmpty() ? QString()
                                 : "<p>" + text().toHtmlEscaped() + "</p><p>" +
                                       systems.join('\n').toHtmlEscaped().replace('\n', "<br>") + "</p>");
    Q_EMIT identified();
}

QString IdentityLine::sameText() const {
    const auto& matches = identification->same();
    const RegistryMatch& first = matches.front();
    QString text = PanelText::tr("%1: the same to %2 mm over its area")
                       .arg(systemText(*first.system), distanceText(first.distance));
    const auto add = [&text](const QString& sentence) { text += (text.endsWith('.') ? " " : ". ") + sentence; };
    const QString reason = reasonAgainstCode(first);
    if (!reason.isEmpty() && first.distance <= RegistryMatch::exactly)
        add(reason);
    if (matches.size() > 1)
        add(PanelText::tr("Also %1").arg(otherCodes(matches)));
    return text;
}

QString IdentityLine::nearestText() const {
    const auto& nearest = identification->nearest();
    if (nearest.empty())
        return PanelText::tr("No system of the EPSG registry is like it");
    QStringList differences;
    for (const RegistryMatch::Difference& difference : nearest.front().differences)
        differences.append(differenceText(difference));
    return PanelText::tr("As %1, but: %2").arg(systemText(*nearest.front().system), differences.join(", "));
}

QString IdentityLine::differenceText(const RegistryMatch::Difference& difference) const {
    const ParamField* field = difference.item == "a"    ? &DatumFields::semiMajorAxis()
                              : difference.item == "rf" ? &DatumFields::inverseFlattening()
                                                        : nullptr;
    if (!field && fields) {
        for (const MethodParameter* const parameter : *MethodParameters::find(int(fields->method))) {
            if (difference.item == parameter->projKey)
                field = fields->field(parameter->recordKey);
        }
    }
    return PanelText::tr("%1 %2 (there %3)")
        .arg(field ? field->labelText() : QString(difference.item), numberText(difference.here),
             numberText(difference.there));
}

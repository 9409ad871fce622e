#include "StarterSelection.h"

#include "NaturalOrder.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

#include <algorithm>

namespace {

/// A line of the file behind its "[", "!" or nothing.
class Rule {
public:
    explicit Rule(const QString& line)
        : text(line)
        , name(QRegularExpression::anchoredPattern(line.section(separator(), 0, 0)))
        , area("^(?:" + line.section(separator(), 1) + ")") {}

    bool takes(const RegistrySystem& system) const {
        return name.match(QString::fromUtf8(system.name)).hasMatch() &&
               area.match(QString::fromUtf8(system.area)).hasMatch();
    }

    /// What is left for a country's group without a line: the systems that are used in the country first.
    static Rule ofCountry(const QString& country) {
        return Rule(".*" + separator() + QRegularExpression::escape(country) + "(?![-\\w])");
    }

    QString text;

private:
    static QString separator() { return QStringLiteral(" @ "); }

    QRegularExpression name;
    QRegularExpression area;
};

/// Moves what `rule` takes from `systems` behind `taken`, in natural order.
void take(const Rule& rule, std::vector<RegistrySystem>& systems, std::vector<RegistrySystem>& taken) {
    const auto first = std::stable_partition(systems.begin(), systems.end(),
                                             [&rule](const RegistrySystem& system) { return !rule.takes(system); });
    if (first == systems.end())
        QTextStream(stderr) << "No system of the registry matches \"" << rule.text << "\".\n";
    std::stable_sort(first, systems.end(), [](const RegistrySystem& left, const RegistrySystem& right) {
        return naturalLess(QString::fromUtf8(left.name), QString::fromUtf8(right.name));
    });
    std::move(first, systems.end(), std::back_inserter(taken));
    systems.erase(first, systems.end());
}

} // namespace

std::vector<StarterGroup> selectStarterGroups(const QString& rulesPath, const std::vector<RegistrySystem>& registry) {
    std::vector<RegistrySystem> systems;
    std::copy_if(registry.begin(), registry.end(), std::back_inserter(systems),
                 [](const RegistrySystem& system) { return !system.deprecated; });
    std::vector<StarterGroup> groups;
    std::vector<RegistrySystem> leftOut;
    bool hasRule = true; // the last group
    const auto closeGroup = [&] {
        if (!hasRule)
            take(Rule::ofCountry(groups.back().name), systems, groups.back().systems);
    };
    QFile file(rulesPath);
    file.open(QIODevice::ReadOnly);
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.startsWith('[')) {
            closeGroup();
            groups.push_back({line.mid(1, line.size() - 2), {}});
            hasRule = false;
        } else if (line.startsWith('!')) {
            take(Rule(line.mid(1).trimmed()), systems, leftOut);
        } else if (!line.isEmpty() && !line.startsWith('#')) {
            take(Rule(line), systems, groups.back().systems);
            hasRule = true;
        }
    }
    closeGroup();
    return groups;
}

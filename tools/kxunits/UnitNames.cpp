#include "UnitNames.h"

#include <QStringList>
#include <algorithm>
#include <string>

#include "KxCoreUnits/UnitsConfig.h"
#include "KxCoreUnits/UnitsUtilities.h"
#include "Text.h"

namespace kxunits {

namespace units = kxnorth::platform::core::units;

namespace {

units::UnitsConfig const& Config() { return *units::UnitsConfig::GetInstance(); }

template <typename Count>
std::vector<int> List(Count count) {
    std::vector<int> ids(count(nullptr));
    if (!ids.empty()) count(ids.data());
    return ids;
}

bool Contains(std::vector<int> const& ids, int id) {
    return std::any_of(ids.begin(), ids.end(), [id](int x) { return (x & units::kIdentityMask) == id; });
}

struct NamedId {
    QString name;
    QString folded;  // lower case
    int id;
    IdKind kind;
};

// Every group, unit and symbol with its global name; built on first use.
std::vector<NamedId> const& AllNames() {
    static std::vector<NamedId> const names = [] {
        std::vector<NamedId> all;
        auto add = [&all](int id, IdKind kind) {
            QString const name = GlobalName(id);
            if (!name.isEmpty()) all.push_back({name, name.toLower(), id, kind});
        };
        for (int group : CatalogueGroups()) {
            add(group, IdKind::Group);
            for (int unit : CatalogueUnits(group)) {
                add(unit, IdKind::Unit);
                for (int symbol : CatalogueSymbols(unit)) add(symbol, IdKind::Symbol);
            }
        }
        return all;
    }();
    return names;
}

bool Accepts(std::vector<IdKind> const& accepted, IdKind kind) {
    return std::find(accepted.begin(), accepted.end(), kind) != accepted.end();
}

QString AcceptedText(std::vector<IdKind> const& accepted) {
    QStringList words;
    for (IdKind kind : accepted) words << KindName(kind);
    if (words.size() <= 1) return words.join(QString());
    QString const last = words.takeLast();
    return words.join(QStringLiteral(", ")) + QStringLiteral(" or ") + last;
}

int EditDistance(QString const& a, QString const& b) {
    std::vector<int> row(static_cast<std::size_t>(b.size()) + 1);
    for (std::size_t j = 0; j < row.size(); ++j) row[j] = static_cast<int>(j);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        int diagonal = row[0];
        row[0] = static_cast<int>(i);
        for (qsizetype j = 1; j <= b.size(); ++j) {
            int const up = row[static_cast<std::size_t>(j)];
            int const cost = a[i - 1] == b[j - 1] ? 0 : 1;
            row[static_cast<std::size_t>(j)] = std::min({up + 1, row[static_cast<std::size_t>(j - 1)] + 1, diagonal + cost});
            diagonal = up;
        }
    }
    return row.back();
}

// Near names of the accepted kinds: those containing the text, then those a few edits away.
QStringList Suggestions(QString const& text, std::vector<IdKind> const& accepted) {
    constexpr int kMaxSuggestions = 6;
    // Longer than any global name by far: nothing is near, and comparing would be slow.
    constexpr qsizetype kMaxComparedLength = 64;
    if (text.size() > kMaxComparedLength) return {};
    QString const folded = text.toLower();
    std::vector<std::pair<int, QString>> ranked;  // (rank, name): lower ranks first
    // Short names are a few edits from too many others to be worth suggesting.
    int const maxEdits = folded.size() <= 3 ? 1 : std::max(2, static_cast<int>(folded.size()) / 4);
    for (NamedId const& named : AllNames()) {
        if (!Accepts(accepted, named.kind)) continue;
        if (folded.size() >= 2 && named.folded.contains(folded)) {
            ranked.emplace_back(static_cast<int>(named.name.size()), named.name);
        } else if (std::abs(named.folded.size() - folded.size()) <= maxEdits) {
            int const edits = EditDistance(folded, named.folded);
            if (edits <= maxEdits) ranked.emplace_back(1000 + edits, named.name);
        }
    }
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](auto const& a, auto const& b) { return a.first < b.first; });
    QStringList names;
    for (auto const& entry : ranked) {
        if (!names.contains(entry.second)) names << entry.second;
        if (names.size() == kMaxSuggestions) break;
    }
    return names;
}

bool ParseIdNumber(QString const& text, int& id) {
    bool ok = false;
    qulonglong value = 0;
    if (text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) {
        value = text.mid(2).toULongLong(&ok, 16);
    } else if (!text.isEmpty() && text[0].isDigit()) {
        value = text.toULongLong(&ok, 10);
    }
    if (!ok || value > 0xFFFFFFFFull) return false;
    id = static_cast<int>(static_cast<unsigned>(value) & units::kIdentityMask);
    return true;
}

int ExactName(QString const& text, IdKind kind) {
    std::wstring const wide = ToWide(text);
    switch (kind) {
        case IdKind::Group: {
            kxp::IDesignPropertyUnits::teGroup group{};
            return units::UnitsUtilities::GetUnitGroup(wide.c_str(), group) == units::eEOk ? group : 0;
        }
        case IdKind::Unit: {
            kxp::IDesignPropertyUnits::teType type{};
            return units::UnitsUtilities::GetUnitType(wide.c_str(), type) == units::eEOk ? type : 0;
        }
        case IdKind::Symbol: {
            units::UnitSymbol symbol{};
            return units::UnitsUtilities::GetUnitSymbol(wide.c_str(), symbol) == units::eEOk ? symbol : 0;
        }
    }
    return 0;
}

}  // namespace

std::vector<int> CatalogueGroups() {
    return List([](int* out) { return Config().GetUnitGroups(out); });
}

std::vector<int> CatalogueUnits(int group) {
    return List([group](int* out) { return Config().GetUnitTypes(group, out); });
}

std::vector<int> CatalogueSymbols(int unit) {
    return List([unit](int* out) { return Config().GetUnitSymbols(unit, out); });
}

IdKind KindOfId(int id) {
    if ((id & 0xFF00000) != 0) return IdKind::Symbol;
    if ((id & units::kUnitIndexMask) != 0) return IdKind::Unit;
    return IdKind::Group;
}

bool IsKnownId(int id) {
    id &= units::kIdentityMask;
    int const group = id & units::kGroupMask;
    if (group == 0 || !Contains(CatalogueGroups(), group)) return false;
    switch (KindOfId(id)) {
        case IdKind::Group:
            return true;
        case IdKind::Unit:
            return Contains(CatalogueUnits(group), id);
        case IdKind::Symbol:
            return (id & units::kUnitIndexMask) != 0 && Contains(CatalogueUnits(group), id & units::kUnitMask) &&
                   Contains(CatalogueSymbols(id & units::kUnitMask), id);
    }
    return false;
}

QString GlobalName(int id) { return FromWide(Config().GetGlobalName(id)); }

QString IdText(int id) {
    return QStringLiteral("0x") +
           QString::number(static_cast<uint>(id & units::kIdentityMask), 16).toUpper().rightJustified(5, QLatin1Char('0'));
}

QString KindName(IdKind kind) {
    switch (kind) {
        case IdKind::Group:
            return QStringLiteral("group");
        case IdKind::Unit:
            return QStringLiteral("unit");
        case IdKind::Symbol:
            return QStringLiteral("symbol");
    }
    return QString();
}

IdLookup FindId(QString const& text, std::vector<IdKind> const& accepted) {
    IdLookup result;
    QString const trimmed = text.trimmed();
    if (trimmed.isEmpty()) {
        result.error = QStringLiteral("an empty name is no %1").arg(AcceptedText(accepted));
        return result;
    }

    int id = 0;
    if (ParseIdNumber(trimmed, id)) {
        IdKind const kind = KindOfId(id);
        if (!IsKnownId(id)) {
            result.error = QStringLiteral("%1 is no %2 of the catalogue").arg(trimmed, AcceptedText(accepted));
        } else if (!Accepts(accepted, kind)) {
            result.error = QStringLiteral("%1 is the %2 %3, not a %4")
                               .arg(trimmed, KindName(kind), GlobalName(id), AcceptedText(accepted));
        } else {
            result.id = id;
            result.kind = kind;
        }
        return result;
    }

    for (IdKind kind : accepted) {
        if (int const exact = ExactName(trimmed, kind); exact != 0) {
            result.id = exact & units::kIdentityMask;
            result.kind = kind;
            return result;
        }
    }

    // Case differs: take the match of the most preferred kind, when it is the only one of that kind.
    QString const folded = trimmed.toLower();
    for (IdKind kind : accepted) {
        std::vector<NamedId const*> matches;
        for (NamedId const& named : AllNames()) {
            if (named.kind == kind && named.folded == folded) matches.push_back(&named);
        }
        if (matches.size() == 1) {
            result.id = matches[0]->id;
            result.kind = kind;
            return result;
        }
        if (matches.size() > 1) {
            QStringList names;
            for (NamedId const* m : matches) names << m->name;
            result.error = QStringLiteral("%1 names several %2s when case is ignored: %3")
                               .arg(Quoted(trimmed), KindName(kind), names.join(QStringLiteral(", ")));
            return result;
        }
    }

    // A known name of the wrong kind.
    for (NamedId const& named : AllNames()) {
        if (named.folded == folded) {
            result.error = QStringLiteral("%1 is the %2 %3, not a %4")
                               .arg(Quoted(trimmed), KindName(named.kind), IdText(named.id), AcceptedText(accepted));
            return result;
        }
    }

    result.error = QStringLiteral("unknown %1 %2").arg(AcceptedText(accepted), Quoted(trimmed));
    QStringList const near = Suggestions(trimmed, accepted);
    if (!near.isEmpty()) result.error += QStringLiteral("; did you mean ") + near.join(QStringLiteral(", ")) + QLatin1Char('?');
    result.error += QStringLiteral(" ('kxunits units' lists them)");
    return result;
}

bool FindNumberFormat(QString const& text, units::NumberFormat& out, QString& error) {
    constexpr int kFormatCount = 7;
    auto nameOf = [](int format) {
        wchar_t buffer[32] = {};
        units::UnitsUtilities::GetGlobalName(static_cast<units::NumberFormat>(format), buffer, 32);
        return FromWide(buffer);
    };
    auto simplified = [](QString s) {
        s = s.toLower();
        s.remove(QLatin1Char(' '));
        s.remove(QLatin1Char('-'));
        s.remove(QLatin1Char('_'));
        return s;
    };

    bool isNumber = false;
    int const number = text.toInt(&isNumber);
    if (isNumber && number >= 0 && number < kFormatCount) {
        out = static_cast<units::NumberFormat>(number);
        return true;
    }
    for (int f = 0; f < kFormatCount; ++f) {
        if (nameOf(f) == text) {
            out = static_cast<units::NumberFormat>(f);
            return true;
        }
    }
    // Then ignoring case and separators, whole names before prefixes ("fixed").
    for (bool prefix : {false, true}) {
        std::vector<int> found;
        for (int f = 0; f < kFormatCount; ++f) {
            QString const name = simplified(nameOf(f)), typed = simplified(text);
            if (!typed.isEmpty() && (prefix ? name.startsWith(typed) : name == typed)) found.push_back(f);
        }
        if (found.size() == 1) {
            out = static_cast<units::NumberFormat>(found.front());
            return true;
        }
        if (found.size() > 1) {
            QStringList names;
            for (int f : found) names << Quoted(nameOf(f));
            error = QStringLiteral("number format %1 could be %2; write it as one of them")
                        .arg(Quoted(text), names.join(QStringLiteral(" or ")));
            return false;
        }
    }
    QStringList names;
    for (int f = 0; f < kFormatCount; ++f) names << QStringLiteral("%1 (%2)").arg(Quoted(nameOf(f))).arg(f);
    error = QStringLiteral("unknown number format %1; the formats are %2")
                .arg(Quoted(text), names.join(QStringLiteral(", ")));
    return false;
}

}  // namespace kxunits

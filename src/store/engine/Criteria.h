#pragma once

#include <QString>
#include <QVariant>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace kartella::engine {

// A recordset filter such as "RastasID=5" or "(FullName Like 'A%' OR KategID<>3) AND
// DokRegistracData>=#3/1/2024#": comparisons (= <> < > <= >= Like, Is [Not] Null) of a field
// with a number, 'text' or #date#, joined by AND and OR, with parentheses.
class Criteria
{
public:
    using FieldLookup = std::function<int(const QString& name)>;
    using ValueOf = std::function<QVariant(int field)>;

    // Throws kartella::Error (3001) with a description for text it can't read or an
    // unknown field.
    static std::unique_ptr<Criteria> parse(const QString& text, const FieldLookup& fieldIndex);
    ~Criteria();

    bool matches(const ValueOf& valueOf) const;

    struct Node;

private:
    Criteria() = default;
    std::unique_ptr<Node> m_root;
};

// Compares two database values the way filters and relations do: numbers by value, dates
// as dates, text without regard to case. Returns <0, 0, >0; nullopt when either is Null or
// they can't be compared.
std::optional<int> compareValues(const QVariant& a, const QVariant& b);

} // namespace kartella::engine

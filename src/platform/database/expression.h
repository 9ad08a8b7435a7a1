#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/database/like_pattern.h"
#include "platform/database/token_cursor.h"
#include "platform/jet/jet_types.h"

namespace tendo::query {

/// A table as one query uses it. Its columns are c0, c1 ... of s0, s1 ... in the translated text.
struct Source {
    const jet::TableDefinition* table = nullptr;
    int storage = 0;   // number of the stored table
    std::string name;  // the table's, or what the query calls it
};

/// A value of the text. Values never become part of the translated text: they are bound to ?17, ?18
/// ...
using Parameter = std::variant<std::int64_t, double, std::string, LikePattern>;

/// Places of parameters that are kept for the keys of the row that is read.
inline constexpr int MaxSources = 16;

enum class OperandKind { Null, Condition, Number, Text, Date, Bytes };

/// A piece of an expression in its translation.
struct Operand {
    std::string
        sql;  // its value; a Condition is 0 or 1 there, while True counts as -1 for the user
    OperandKind kind = OperandKind::Null;
    std::string stored = {};  // of a plain column: the value as stored
    int source = -1;          // of a plain column
    int place = -1;           // of a plain column
    bool isLiteral = false;
};

/// Reads expressions of the query language and gives them in SQLite's. Unknown columns, columns
/// that stand in two tables (3079), broken texts and types that can't meet (3464) throw a
/// RuntimeError.
class ExpressionReader {
  public:
    ExpressionReader(TokenCursor& cursor, const std::vector<Source>& sources,
                     std::vector<Parameter>& parameters)
        : cursor_(cursor), sources_(sources), parameters_(parameters) {}

    Operand Read();
    /// An expression that is true or false, ready for WHERE or ON.
    std::string ReadCondition();
    /// The same of what was read: RuntimeError 3464 for a text.
    static std::string ConditionSql(const Operand& operand);
    /// The value as the user's language counts it: True is -1.
    static std::string ValueSql(const Operand& operand);

  private:
    Operand ReadOr();
    Operand ReadAnd();
    Operand ReadNot();
    Operand ReadComparison();
    Operand ReadSum();
    Operand ReadProduct();
    Operand ReadSigned();
    Operand ReadPrimary();
    Operand ReadColumn();
    Operand ReadLiteral();
    Operand ReadIsNull(const Operand& left);
    Operand ReadLike(const Operand& left);
    Operand ReadBetween(const Operand& left);
    Operand ReadIn(const Operand& left);
    Operand Calculated(const Operand& left, const std::string& sign, const Operand& right);
    void CheckComparable(const Operand& left, const Operand& right);
    Operand ColumnOf(std::string_view sourceName, std::string_view column);
    bool HasColumn(std::string_view column) const;
    std::string TakeBareName();
    std::string Bound(Parameter value);

    TokenCursor& cursor_;
    const std::vector<Source>& sources_;
    std::vector<Parameter>& parameters_;
    int depth_ = 0;
};

/// The place of a column in its table, whatever its case; -1 without one.
int PlaceOfColumn(const jet::TableDefinition& table, std::string_view column);

}  // namespace tendo::query

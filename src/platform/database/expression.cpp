#include "platform/database/expression.h"

#include <algorithm>
#include <cmath>

#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo::query {
namespace {

constexpr int AmbiguousColumn = 3079;
constexpr int TypesDoNotMeet = 3464;
constexpr int DeepestNesting = 40;      // parentheses and signs within each other
constexpr std::size_t LongestName = 8;  // words of a name with blanks that stands without brackets
constexpr std::size_t MostParameters = 500;
constexpr double ExactWhole = 9007199254740992.0;  // 2^53

Operand Condition(std::string sql) {
    return {"(" + std::move(sql) + ")", OperandKind::Condition};
}

[[noreturn]] void ThrowTypes(std::string_view why) {
    throw RuntimeError(TypesDoNotMeet,
                       "Data type mismatch in criteria expression: " + std::string(why) + ".");
}

/// The value of a stored column as expressions see it. Currency is stored in ten-thousandths; the
/// quotient is the double nearest to the amount, so it meets the literal of the same digits. A
/// Single is compared in double precision, unrounded: 999.9 of a Single lies above the literal.
Operand ColumnOperand(const std::string& stored, jet::ColumnType type) {
    switch (type) {
        case jet::ColumnType::Boolean:
            return {"(-" + stored + ")", OperandKind::Number, stored};
        case jet::ColumnType::Currency:
            return {"(" + stored + "/10000.0)", OperandKind::Number, stored};
        case jet::ColumnType::Numeric:
            return {"CAST(" + stored + " AS REAL)", OperandKind::Number, stored};
        case jet::ColumnType::Date:
            return {stored, OperandKind::Date, stored};
        case jet::ColumnType::Text:
        case jet::ColumnType::Memo:
        case jet::ColumnType::Guid:
            return {stored, OperandKind::Text, stored};
        case jet::ColumnType::Binary:
        case jet::ColumnType::Ole:
            return {stored, OperandKind::Bytes, stored};
        default:
            return {stored, OperandKind::Number, stored};
    }
}

/// The type by whose plain text an operand meets a pattern.
jet::ColumnType TypeForLike(const Operand& operand, const std::vector<Source>& sources) {
    if (operand.source >= 0) {
        const auto& columns = sources[static_cast<std::size_t>(operand.source)].table->columns;
        return columns[static_cast<std::size_t>(operand.place)].type;
    }
    if (operand.kind == OperandKind::Text) return jet::ColumnType::Text;
    if (operand.kind == OperandKind::Date) return jet::ColumnType::Date;
    return jet::ColumnType::Double;
}

}  // namespace

int PlaceOfColumn(const jet::TableDefinition& table, std::string_view column) {
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        if (EqualsNoCase(table.columns[i].name, column)) return static_cast<int>(i);
    return -1;
}

std::string ExpressionReader::ValueSql(const Operand& operand) {
    return operand.kind == OperandKind::Condition ? "(-" + operand.sql + ")" : operand.sql;
}

std::string ExpressionReader::ConditionSql(const Operand& operand) {
    if (operand.kind == OperandKind::Text || operand.kind == OperandKind::Bytes)
        ThrowTypes("a text stands where a condition is wanted");
    return operand.sql;
}

std::string ExpressionReader::Bound(Parameter value) {
    if (parameters_.size() >= MostParameters) cursor_.Broken("the text is too complex");
    parameters_.push_back(std::move(value));
    return "?" + std::to_string(MaxSources + static_cast<int>(parameters_.size()));
}

void ExpressionReader::CheckComparable(const Operand& left, const Operand& right) {
    if (left.kind == OperandKind::Null || right.kind == OperandKind::Null) return;
    if (left.kind == OperandKind::Bytes || right.kind == OperandKind::Bytes)
        ThrowTypes("bytes can't be compared");
    if ((left.kind == OperandKind::Text) != (right.kind == OperandKind::Text))
        ThrowTypes("a text is compared with a number");
}

Operand ExpressionReader::Read() {
    if (++depth_ > DeepestNesting) cursor_.Broken("the text is nested too deeply");
    Operand operand = ReadOr();
    --depth_;
    return operand;
}

std::string ExpressionReader::ReadCondition() {
    return ConditionSql(Read());
}

Operand ExpressionReader::ReadOr() {
    Operand left = ReadAnd();
    if (!cursor_.IsWord("or")) return left;
    std::string sql = ConditionSql(left);
    while (cursor_.TakeWord("or"))
        sql += " OR " + ConditionSql(ReadAnd());
    return Condition(std::move(sql));
}

Operand ExpressionReader::ReadAnd() {
    Operand left = ReadNot();
    if (!cursor_.IsWord("and")) return left;
    std::string sql = ConditionSql(left);
    while (cursor_.TakeWord("and"))
        sql += " AND " + ConditionSql(ReadNot());
    return Condition(std::move(sql));
}

Operand ExpressionReader::ReadNot() {
    bool negated = false;
    bool any = false;
    for (; cursor_.TakeWord("not"); any = true)
        negated = !negated;
    Operand operand = ReadComparison();
    if (!any) return operand;
    const std::string sql = ConditionSql(operand);
    return Condition(negated ? "NOT " + sql : "NOT NOT " + sql);
}

Operand ExpressionReader::ReadComparison() {
    Operand left = ReadSum();
    for (;;) {
        bool found = false;
        for (const std::string_view sign : {"=", "<>", "<=", ">=", "<", ">"}) {
            if (!cursor_.TakeSign(sign)) continue;
            const Operand right = ReadSum();
            CheckComparable(left, right);
            left = Condition(ValueSql(left) + " COLLATE GENERAL " + std::string(sign) + " " +
                             ValueSql(right));
            found = true;
            break;
        }
        if (found) continue;
        if (cursor_.IsWord("is")) {
            left = ReadIsNull(left);
            continue;
        }
        const bool negated = cursor_.IsWord("not");
        const std::size_t ahead = negated ? 1 : 0;
        const bool like = cursor_.IsWord("like", ahead);
        const bool between = cursor_.IsWord("between", ahead);
        if (!like && !between && !cursor_.IsWord("in", ahead)) return left;
        cursor_.GoTo(cursor_.At() + ahead + 1);
        left = like ? ReadLike(left) : between ? ReadBetween(left) : ReadIn(left);
        if (negated) left = Condition("NOT " + left.sql);
    }
}

Operand ExpressionReader::ReadIsNull(const Operand& left) {
    cursor_.ExpectWord("is");
    const bool negated = cursor_.TakeWord("not");
    cursor_.ExpectWord("null");
    return Condition(left.sql + (negated ? " IS NOT NULL" : " IS NULL"));
}

Operand ExpressionReader::ReadLike(const Operand& left) {
    if (left.kind == OperandKind::Bytes) ThrowTypes("bytes can't be compared");
    const Token token = cursor_.Take();
    if (token.kind != TokenKind::Text && token.kind != TokenKind::Number)
        cursor_.Broken("Like is not followed by a pattern in quotation marks");
    auto pattern = LikePattern::Read(token.text);
    if (!pattern) cursor_.Broken("the pattern '" + token.text + "' is not valid");
    const auto type = static_cast<int>(TypeForLike(left, sources_));
    const std::string value = left.source >= 0 ? left.stored : ValueSql(left);
    return Condition("jet_like(" + value + "," + Bound(std::move(*pattern)) + "," +
                     std::to_string(type) + ")");
}

Operand ExpressionReader::ReadBetween(const Operand& left) {
    const Operand low = ReadSum();
    cursor_.ExpectWord("and");
    const Operand high = ReadSum();
    CheckComparable(left, low);
    CheckComparable(left, high);
    return Condition(ValueSql(left) + " COLLATE GENERAL BETWEEN " + ValueSql(low) + " AND " +
                     ValueSql(high));
}

Operand ExpressionReader::ReadIn(const Operand& left) {
    cursor_.ExpectSign("(");
    std::string list;
    do {
        const Operand item = ReadSum();
        CheckComparable(left, item);
        list += (list.empty() ? "" : ",") + ValueSql(item);
    } while (cursor_.TakeSign(","));
    cursor_.ExpectSign(")");
    return Condition(ValueSql(left) + " COLLATE GENERAL IN (" + list + ")");
}

Operand ExpressionReader::Calculated(const Operand& left, const std::string& sign,
                                     const Operand& right) {
    for (const Operand* operand : {&left, &right})
        if (operand->kind == OperandKind::Text || operand->kind == OperandKind::Bytes)
            ThrowTypes("a text can't be calculated with");
    const bool isDate = left.kind == OperandKind::Date || right.kind == OperandKind::Date;
    const std::string factor = sign == "/" ? "1.0*" : "";
    return {"(" + factor + ValueSql(left) + " " + sign + " " + ValueSql(right) + ")",
            isDate ? OperandKind::Date : OperandKind::Number};
}

Operand ExpressionReader::ReadSum() {
    Operand left = ReadProduct();
    while (cursor_.IsSign("+") || cursor_.IsSign("-")) {
        const std::string sign = cursor_.Take().text;
        left = Calculated(left, sign, ReadProduct());
    }
    return left;
}

Operand ExpressionReader::ReadProduct() {
    Operand left = ReadSigned();
    while (cursor_.IsSign("*") || cursor_.IsSign("/")) {
        const std::string sign = cursor_.Take().text;
        left = Calculated(left, sign, ReadSigned());
    }
    return left;
}

Operand ExpressionReader::ReadSigned() {
    bool negative = false;
    bool any = false;
    for (; cursor_.IsSign("-") || cursor_.IsSign("+"); any = true)
        if (cursor_.Take().text == "-") negative = !negative;
    Operand operand = ReadPrimary();
    if (!any) return operand;
    if (operand.kind == OperandKind::Text || operand.kind == OperandKind::Bytes)
        ThrowTypes("a text has no sign");
    return {negative ? "(-" + ValueSql(operand) + ")" : "(" + ValueSql(operand) + ")",
            OperandKind::Number};
}

Operand ExpressionReader::ReadPrimary() {
    if (cursor_.TakeSign("(")) {
        Operand inner = Read();
        cursor_.ExpectSign(")");
        return inner;
    }
    if (cursor_.IsName()) return ReadColumn();
    return ReadLiteral();
}

Operand ExpressionReader::ReadLiteral() {
    const Token token = cursor_.Peek();
    if (cursor_.TakeWord("true") || cursor_.TakeWord("yes"))
        return {"(-1)", OperandKind::Number, "", -1, -1, true};
    if (cursor_.TakeWord("false") || cursor_.TakeWord("no"))
        return {"(0)", OperandKind::Number, "", -1, -1, true};
    if (cursor_.TakeWord("null")) return {"NULL", OperandKind::Null, "", -1, -1, true};
    switch (token.kind) {
        case TokenKind::Number:
            cursor_.Take();
            if (token.number == std::floor(token.number) && token.number < ExactWhole)
                return {Bound(static_cast<std::int64_t>(token.number)),
                        OperandKind::Number,
                        "",
                        -1,
                        -1,
                        true};
            return {Bound(token.number), OperandKind::Number, "", -1, -1, true};
        case TokenKind::Date:
            cursor_.Take();
            return {Bound(token.number), OperandKind::Date, "", -1, -1, true};
        case TokenKind::Text:
            cursor_.Take();
            return {Bound(token.text), OperandKind::Text, "", -1, -1, true};
        default:
            cursor_.Broken("a value is missing before " + cursor_.Shown());
    }
}

bool ExpressionReader::HasColumn(std::string_view column) const {
    return std::any_of(sources_.begin(), sources_.end(), [column](const Source& source) {
        return PlaceOfColumn(*source.table, column) >= 0;
    });
}

/// A name with blanks may stand without brackets when a column is called so (Part Number Like
/// '*x*'): the program's own searches write it that way. The longest name wins.
std::string ExpressionReader::TakeBareName() {
    std::string name = cursor_.Take().text;
    if (cursor_.IsSign(".")) return name;
    std::string longer = name;
    std::size_t words = 0;
    for (std::size_t i = 0; i < LongestName; ++i) {
        const Token& next = cursor_.Peek(i);
        if (next.kind != TokenKind::Word && next.kind != TokenKind::Number) break;
        longer += " " + next.text;
        if (!HasColumn(longer)) continue;
        name = longer;
        words = i + 1;
    }
    cursor_.GoTo(cursor_.At() + words);
    return name;
}

Operand ExpressionReader::ReadColumn() {
    const bool isBare = cursor_.Peek().kind == TokenKind::Word;
    const std::string name = isBare ? TakeBareName() : cursor_.Take().text;
    if (cursor_.IsSign("(")) cursor_.Broken("the function " + name + " is not known");
    if (!cursor_.TakeSign(".")) return ColumnOf("", name);
    const Token column = cursor_.Take();
    if (column.kind != TokenKind::Word && column.kind != TokenKind::BracketedName)
        cursor_.Broken("the name of a column is missing behind \"" + name + ".\"");
    return ColumnOf(name, column.text);
}

Operand ExpressionReader::ColumnOf(std::string_view sourceName, std::string_view column) {
    int found = -1;
    for (std::size_t i = 0; i < sources_.size(); ++i) {
        if (!sourceName.empty() && !EqualsNoCase(sources_[i].name, sourceName)) continue;
        if (PlaceOfColumn(*sources_[i].table, column) < 0) continue;
        if (found >= 0)
            throw RuntimeError(AmbiguousColumn,
                               "The column \"" + std::string(column) +
                                   "\" stands in more than one table of the query.");
        found = static_cast<int>(i);
    }
    if (found < 0)
        throw RuntimeError(cursor_.Errors().unknownColumn,
                           "The column \"" +
                               (sourceName.empty() ? "" : std::string(sourceName) + ".") +
                               std::string(column) + "\" does not exist in the tables asked.");
    const jet::TableDefinition& table = *sources_[static_cast<std::size_t>(found)].table;
    const int place = PlaceOfColumn(table, column);
    Operand operand = ColumnOperand("s" + std::to_string(found) + ".c" + std::to_string(place),
                                    table.columns[static_cast<std::size_t>(place)].type);
    operand.source = found;
    operand.place = place;
    return operand;
}

}  // namespace tendo::query

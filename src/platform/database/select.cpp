#include "platform/database/select.h"

#include <algorithm>

#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo::query {
namespace {

constexpr ErrorNumbers selectErrors{error_number::SyntaxErrorInQuery,
                                    error_number::TooFewParameters};
constexpr int UnknownNameInCriteria = 3070;
constexpr int DeepestJoin = 20;

std::string Alias(std::size_t source) {
    return "s" + std::to_string(source);
}

std::string StoredTable(const Source& source) {
    return "t" + std::to_string(source.storage);
}

/// Text orders by its key of the General order, worked out once a row; nulls come first by nature.
std::string OrderSql(const Operand& operand) {
    if (operand.kind == OperandKind::Text) return "jet_key(" + operand.sql + ")";
    return ExpressionReader::ValueSql(operand);
}

std::string RowIds(std::size_t sources, std::string_view separator) {
    std::string list;
    for (std::size_t i = 0; i < sources; ++i)
        list += (i ? std::string(separator) : "") + Alias(i) + ".rowid";
    return list;
}

class SelectReader {
  public:
    SelectReader(std::string_view text, const FindTable& findTable)
        : cursor_(text, selectErrors), findTable_(findTable) {}

    Select Read() {
        cursor_.ExpectWord("select");
        if (!cursor_.TakeWord("all")) result_.distinct = cursor_.TakeWord("distinct");
        const std::size_t list = cursor_.At();
        SkipToFrom();
        cursor_.ExpectWord("from");
        ReadFrom();
        if (cursor_.TakeWord("where")) result_.where = Expressions().ReadCondition();
        if (cursor_.TakeWord("order")) ReadOrder();
        cursor_.TakeSign(";");
        cursor_.ExpectEnd();
        // The list stands before the tables, but its names are known only behind them.
        cursor_.GoTo(list);
        ReadList();
        NameOutputs();
        return std::move(result_);
    }

  private:
    ExpressionReader Expressions() {
        return ExpressionReader(cursor_, result_.sources, result_.parameters);
    }

    void SkipToFrom() {
        while (!cursor_.IsWord("from") && cursor_.Peek().kind != TokenKind::End)
            cursor_.Take();
    }

    void ReadFrom() {
        do
            result_.from += (result_.from.empty() ? "" : ",") + ReadJoin(0);
        while (cursor_.TakeSign(","));
    }

    std::string ReadJoin(int depth) {
        if (depth > DeepestJoin) cursor_.Broken("the joins are nested too deeply");
        std::string sql = ReadTable(depth);
        for (;;) {
            const std::string join = TakeJoinWords();
            if (join.empty()) return sql;
            sql += join + ReadTable(depth);
            cursor_.ExpectWord("on");
            sql = "(" + sql + " ON " + Expressions().ReadCondition() + ")";
        }
    }

    std::string TakeJoinWords() {
        for (const std::string_view kind : {"inner", "left", "right"}) {
            if (!cursor_.TakeWord(kind)) continue;
            if (kind != "inner") cursor_.TakeWord("outer");
            cursor_.ExpectWord("join");
            return " " + UpperCase(kind) + " JOIN ";
        }
        return "";
    }

    std::string ReadTable(int depth) {
        if (cursor_.TakeSign("(")) {
            const std::string inner = ReadJoin(depth + 1);
            cursor_.ExpectSign(")");
            return inner;
        }
        if (result_.sources.size() >= static_cast<std::size_t>(MaxSources))
            cursor_.Broken("the query joins too many tables");
        Source source = findTable_(cursor_.TakeName("a table"));
        if (cursor_.TakeWord("as") || cursor_.IsName()) source.name = cursor_.TakeName("a table");
        for (const Source& other : result_.sources)
            if (EqualsNoCase(other.name, source.name))
                cursor_.Broken("the table " + source.name + " is named twice");
        result_.sources.push_back(source);
        return StoredTable(source) + " AS " + Alias(result_.sources.size() - 1);
    }

    void ReadOrder() {
        cursor_.ExpectWord("by");
        do {
            const Operand operand = Expressions().Read();
            if (operand.isLiteral || operand.kind == OperandKind::Bytes)
                cursor_.Broken("rows can't be ordered by what stands before " + cursor_.Shown());
            result_.order += (result_.order.empty() ? "" : ",") + OrderSql(operand);
            if (cursor_.TakeWord("desc")) result_.order += " DESC";
            cursor_.TakeWord("asc");
        } while (cursor_.TakeSign(","));
    }

    void ReadList() {
        do
            ReadListItem();
        while (cursor_.TakeSign(","));
        if (!cursor_.IsWord("from")) cursor_.ExpectEnd();
    }

    void ReadListItem() {
        if (cursor_.TakeSign("*")) {
            for (std::size_t i = 0; i < result_.sources.size(); ++i)
                AddAllColumns(i);
            return;
        }
        if (cursor_.IsName() && cursor_.Peek(1).text == "." && cursor_.IsSign("*", 2)) {
            const std::string table = cursor_.Take().text;
            cursor_.GoTo(cursor_.At() + 2);
            AddAllColumns(SourceOf(table));
            return;
        }
        AddExpression(Expressions().Read());
    }

    std::size_t SourceOf(const std::string& name) {
        for (std::size_t i = 0; i < result_.sources.size(); ++i)
            if (EqualsNoCase(result_.sources[i].name, name)) return i;
        cursor_.Broken("the table " + name + " is not part of the query");
    }

    void AddAllColumns(std::size_t source) {
        for (std::size_t i = 0; i < result_.sources[source].table->columns.size(); ++i)
            AddColumn(static_cast<int>(source), static_cast<int>(i));
    }

    void AddColumn(int source, int place) {
        const Source& from = result_.sources[static_cast<std::size_t>(source)];
        OutputColumn output;
        output.column = from.table->columns[static_cast<std::size_t>(place)];
        output.qualifiedName = from.name + "." + output.column.name;
        output.sql = Alias(static_cast<std::size_t>(source)) + ".c" + std::to_string(place);
        output.source = source;
        output.place = place;
        result_.outputs.push_back(output);
    }

    void AddExpression(const Operand& operand) {
        if (operand.source >= 0) {
            AddColumn(operand.source, operand.place);
        } else {
            OutputColumn output;
            output.column.name = "Expr" + std::to_string(1000 + result_.outputs.size());
            output.column.type = TypeOf(operand.kind);
            output.sql = operand.sql;
            result_.outputs.push_back(output);
        }
        OutputColumn& added = result_.outputs.back();
        if (cursor_.TakeWord("as")) {
            added.column.name = cursor_.TakeName("a column");
            added.qualifiedName.clear();
        }
        if (added.qualifiedName.empty()) added.qualifiedName = added.column.name;
    }

    static jet::ColumnType TypeOf(OperandKind kind) {
        switch (kind) {
            case OperandKind::Condition:
                return jet::ColumnType::Boolean;
            case OperandKind::Number:
                return jet::ColumnType::Double;
            case OperandKind::Date:
                return jet::ColumnType::Date;
            default:
                return jet::ColumnType::Memo;
        }
    }

    /// Columns of one name from several tables bear their table's name before their own.
    void NameOutputs() {
        std::vector<std::string> names;
        for (const OutputColumn& output : result_.outputs)
            names.push_back(UpperCase(output.column.name));
        std::vector<std::string> sorted = names;
        std::sort(sorted.begin(), sorted.end());
        for (std::size_t i = 0; i < names.size(); ++i) {
            const auto [first, last] = std::equal_range(sorted.begin(), sorted.end(), names[i]);
            if (last - first > 1) result_.outputs[i].column.name = result_.outputs[i].qualifiedName;
        }
    }

    TokenCursor cursor_;
    const FindTable& findTable_;
    Select result_;
};

}  // namespace

std::string Select::KeyQuery() const {
    const std::string keys = RowIds(sources.size(), ",");
    std::string sql = "SELECT " + keys + " FROM " + from;
    if (!where.empty()) sql += " WHERE " + where;
    if (distinct) {
        std::string groups;
        for (const OutputColumn& output : outputs)
            groups += (groups.empty() ? "" : ",") + output.sql + " COLLATE GENERAL";
        sql += " GROUP BY " + groups;
        if (order.empty()) return sql;
    }
    return sql + " ORDER BY " + (order.empty() ? "" : order + ",") + keys;
}

std::string Select::FromKeys() const {
    // With several tables a key may be null, where an outer join found nothing.
    if (sources.size() == 1) return " FROM " + StoredTable(sources[0]) + " AS s0 WHERE s0.rowid=?1";
    std::string sql = " FROM (SELECT 1)";
    for (std::size_t i = 0; i < sources.size(); ++i)
        sql += " LEFT JOIN " + StoredTable(sources[i]) + " AS " + Alias(i) + " ON " + Alias(i) +
               ".rowid=?" + std::to_string(i + 1);
    return sql + " WHERE 1";
}

std::string Select::RowQuery() const {
    std::string list;
    for (const OutputColumn& output : outputs)
        list += (list.empty() ? "" : ",") + output.sql;
    return "SELECT " + list + FromKeys();
}

std::string Select::TestQuery(std::string_view condition) const {
    return "SELECT 1" + FromKeys() + " AND (" + std::string(condition) + ")";
}

Select ReadSelect(std::string_view text, const FindTable& findTable) {
    return SelectReader(text, findTable).Read();
}

Select SelectAll(const Source& source) {
    return ReadSelect("SELECT * FROM [x]", [&](std::string_view) { return source; });
}

bool IsSelect(std::string_view text) {
    constexpr std::string_view Select = "select";
    text = Trimmed(text);
    if (!EqualsNoCase(text.substr(0, Select.size()), Select)) return false;
    if (text.size() == Select.size()) return true;
    return std::string_view(" \t\r\n*[").find(text[Select.size()]) != std::string_view::npos;
}

std::string ReadCriteria(std::string_view text, const std::vector<Source>& sources,
                         std::vector<Parameter>& parameters) {
    TokenCursor cursor(text, {error_number::SyntaxErrorInCriteria, UnknownNameInCriteria});
    const Operand condition = ExpressionReader(cursor, sources, parameters).Read();
    cursor.ExpectEnd();  // a broken text is told before types that don't meet
    return ExpressionReader::ConditionSql(condition);
}

}  // namespace tendo::query

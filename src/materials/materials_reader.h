#pragma once

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/jet/jet_reader.h"
#include "project/project_records.h"

namespace tendo {

/// Reads the materials of a price book in the catalogue's order: by category and description in
/// the engine's General order, nulls first, equal ones as they stand in the file. The rows come
/// straight from the file: a query engine between would take five times as long, and a takeoff
/// waits for this.
class MaterialsReader {
  public:
    /// RuntimeError as of jet::Reader::OpenFile.
    explicit MaterialsReader(const std::string& file) : reader_(jet::Reader::OpenFile(file)) {}

    /// Reads and orders all rows. RuntimeError 3078 without the table, 3061 without the columns
    /// that order it, 3343 for damage. Where a value can't be taken `location` becomes 5, the step
    /// that fills the rows: 13 for a text that should be a number, 6 for one beyond its range.
    void Read(int& location);
    std::size_t Count() const { return rows_.size(); }
    /// Fills a catalogue of `Count()` rows. RuntimeError 3265 when the table lacks a column; the
    /// first row then has what it does hold.
    void MoveInto(std::vector<MaterialRow>& catalogue);
    void Close() { reader_.reset(); }

  private:
    struct Place {
        std::uint32_t category = 0;  // its rank; 0 is null
        std::uint32_t key = 0;       // of the description, in keys_; equal ends mean null
        std::uint32_t keyEnd = 0;
        std::uint32_t row = 0;
    };
    struct Column {
        int place = -1;
        jet::ColumnType type = jet::ColumnType::Text;
    };

    void FindColumns();
    void ReadRow(std::span<const jet::ValueView> values);
    void RankCategories();
    bool Before(const Place& a, const Place& b) const;

    std::optional<jet::Reader> reader_;
    Column description_, category_, partNumber_, unitCost_, listCost_;
    std::vector<MaterialRow> rows_;  // in the order of the file
    std::vector<Place> places_;
    std::unordered_map<std::string, std::uint32_t> categories_;  // numbers from 1, then ranks
    std::string keys_;
};

}  // namespace tendo

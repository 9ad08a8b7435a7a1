#include "platform/qt/painter_metafile.h"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <variant>
#include <vector>

#include "platform/qt/pixel_picture.h"
#include "platform/qt/text_measurer_qt.h"
#include "platform/text/code_page.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

constexpr std::size_t PlaceableHeader = 22, FileHeader = 18, RecordHeader = 6;
constexpr std::size_t MostObjects = 4096, MostSavedStates = 256;
constexpr int Farthest = 1 << 24;  // units from the window's first origin

/// 16-bit words and bytes of a record by their offset; 0 beyond its end.
class Record {
  public:
    explicit Record(std::string_view bytes) : bytes_(bytes) {}
    std::uint32_t Byte(std::size_t at) const {
        return at < bytes_.size() ? static_cast<unsigned char>(bytes_[at]) : 0;
    }
    int Word(std::size_t index) const {
        return static_cast<std::int16_t>(Byte(index * 2) | Byte(index * 2 + 1) << 8);
    }
    std::size_t Count(std::size_t index) const {
        return static_cast<std::size_t>(std::max(Word(index), 0));
    }
    std::size_t Words() const { return bytes_.size() / 2; }
    QColor Color(std::size_t index) const {
        const std::size_t at = index * 2;
        return QColor(static_cast<int>(Byte(at)), static_cast<int>(Byte(at + 1)),
                      static_cast<int>(Byte(at + 2)));
    }
    std::string_view Text(std::size_t at, std::size_t length) const {
        return at < bytes_.size() ? bytes_.substr(at, length) : std::string_view();
    }
    std::string_view From(std::size_t index) const { return Text(index * 2, bytes_.size()); }

  private:
    std::string_view bytes_;
};

/// Keeps a place in the table of objects whose kind isn't painted with.
struct OtherObject {};
using Object = std::variant<std::monostate, QPen, QBrush, QFont, OtherObject>;

class MetafilePlayer {
  public:
    ~MetafilePlayer() {
        for (std::size_t i = 0; i < saved_.size(); ++i)
            painter_.restore();
    }
    MetafilePlayer(const MetafilePlayer&) = delete;
    MetafilePlayer& operator=(const MetafilePlayer&) = delete;
    MetafilePlayer(QPainter& painter, const Record& header, const QRectF& box)
        : painter_(painter), box_(box) {
        state_.left = header.Word(3);
        state_.top = header.Word(4);
        state_.width = header.Word(5) - state_.left;
        state_.height = header.Word(6) - state_.top;
        painter_.setPen(QPen(Qt::black, 0));
        painter_.setBrush(Qt::white);
    }

    void Play(std::string_view records) {
        while (records.size() >= RecordHeader) {
            const Record head(records);
            const std::size_t words = head.Byte(0) | head.Byte(1) << 8 | head.Byte(2) << 16;
            const std::size_t bytes = words * 2;
            const int function = head.Word(2);
            if (bytes < RecordHeader || bytes > records.size() || function == 0) return;
            Run(function, Record(records.substr(RecordHeader, bytes - RecordHeader)));
            records.remove_prefix(bytes);
        }
    }

  private:
    /// What the painter doesn't hold itself.
    struct State {
        int left = 0, top = 0, width = 0, height = 0;  // the window
        Qt::FillRule fill = Qt::OddEvenFill;
        QColor textColor = Qt::black;
        int textAlign = 0;
        QPointF pen;
    };
    using Action = void (MetafilePlayer::*)(const Record&);
    struct Entry {
        int function;
        Action action;
    };

    void Run(int function, const Record& record) {
        static constexpr std::array Entries = {
            Entry{0x001E, &MetafilePlayer::SaveState},
            Entry{0x0127, &MetafilePlayer::RestoreState},
            Entry{0x0416, &MetafilePlayer::IntersectClip},
            Entry{0x020F, &MetafilePlayer::MoveWindowOrigin},
            Entry{0x020B, &MetafilePlayer::SetWindowOrigin},
            Entry{0x020C, &MetafilePlayer::SetWindowExtent},
            Entry{0x0106, &MetafilePlayer::SetFillMode},
            Entry{0x0209, &MetafilePlayer::SetTextColor},
            Entry{0x012E, &MetafilePlayer::SetTextAlign},
            Entry{0x02FA, &MetafilePlayer::CreatePen},
            Entry{0x02FC, &MetafilePlayer::CreateBrush},
            Entry{0x02FB, &MetafilePlayer::CreateFont},
            Entry{0x0142, &MetafilePlayer::CreateOther},
            Entry{0x01F9, &MetafilePlayer::CreateOther},
            Entry{0x00F7, &MetafilePlayer::CreateOther},
            Entry{0x06FF, &MetafilePlayer::CreateOther},
            Entry{0x012D, &MetafilePlayer::SelectObject},
            Entry{0x01F0, &MetafilePlayer::DeleteObject},
            Entry{0x0214, &MetafilePlayer::MoveTo},
            Entry{0x0213, &MetafilePlayer::LineTo},
            Entry{0x0324, &MetafilePlayer::Polygon},
            Entry{0x0325, &MetafilePlayer::Polyline},
            Entry{0x0538, &MetafilePlayer::PolyPolygon},
            Entry{0x041B, &MetafilePlayer::Rectangle},
            Entry{0x061C, &MetafilePlayer::RoundRectangle},
            Entry{0x0418, &MetafilePlayer::Ellipse},
            Entry{0x0817, &MetafilePlayer::Arc},
            Entry{0x081A, &MetafilePlayer::Pie},
            Entry{0x0830, &MetafilePlayer::Chord},
            Entry{0x0521, &MetafilePlayer::TextOut},
            Entry{0x0A32, &MetafilePlayer::ExtTextOut},
            Entry{0x041F, &MetafilePlayer::SetPixel},
            Entry{0x061D, &MetafilePlayer::FillBlock},
            Entry{0x0F43, &MetafilePlayer::StretchBitmap},
            Entry{0x0B41, &MetafilePlayer::StretchBlock},
            Entry{0x0940, &MetafilePlayer::CopyBlock},
            Entry{0x0D33, &MetafilePlayer::CopyBitmap},
        };
        for (const Entry& entry : Entries)
            if (entry.function == function) (this->*entry.action)(record);
    }

    double ScaleX() const { return state_.width == 0 ? 0 : box_.width() / state_.width; }
    double ScaleY() const { return state_.height == 0 ? 0 : box_.height() / state_.height; }
    QPointF At(int x, int y) const {
        return {box_.left() + (x - state_.left) * ScaleX(),
                box_.top() + (y - state_.top) * ScaleY()};
    }
    QPointF Point(const Record& record, std::size_t index) const {
        return At(record.Word(index), record.Word(index + 1));
    }
    /// A rectangle whose words stand as bottom, right, top, left.
    QRectF Corners(const Record& record, std::size_t index) const {
        return QRectF(At(record.Word(index + 3), record.Word(index + 2)),
                      At(record.Word(index + 1), record.Word(index)))
            .normalized();
    }
    /// As many of the points as the record holds.
    QPolygonF Points(const Record& record, std::size_t first, std::size_t count) const {
        QPolygonF points;
        for (std::size_t i = 0; i < count && first + 2 * i + 1 < record.Words(); ++i)
            points << Point(record, first + 2 * i);
        return points;
    }

    void SaveState(const Record&) {
        if (saved_.size() == MostSavedStates) return;
        painter_.save();
        saved_.push_back(state_);
    }
    /// Back to a state by its number from 1, or by so many states as a number below zero says.
    void RestoreState(const Record& record) {
        const int held = static_cast<int>(saved_.size());
        const int number = record.Word(0) < 0 ? held + 1 + record.Word(0) : record.Word(0);
        if (number < 1 || number > held) return;
        for (int i = held; i >= number; --i) {
            painter_.restore();
            state_ = saved_.back();
            saved_.pop_back();
        }
    }
    void IntersectClip(const Record& record) {
        painter_.setClipRect(Corners(record, 0), Qt::IntersectClip);
    }

    void MoveWindowOrigin(const Record& record) {
        const auto moved = [](int from, int by) {
            return std::clamp(from + by, -Farthest, Farthest);
        };
        state_.top = moved(state_.top, record.Word(0));
        state_.left = moved(state_.left, record.Word(1));
    }
    void SetWindowOrigin(const Record& record) {
        state_.top = record.Word(0);
        state_.left = record.Word(1);
    }
    void SetWindowExtent(const Record& record) {
        state_.height = record.Word(0);
        state_.width = record.Word(1);
    }
    void SetFillMode(const Record& record) {
        state_.fill = record.Word(0) == 2 ? Qt::WindingFill : Qt::OddEvenFill;
    }
    void SetTextColor(const Record& record) { state_.textColor = record.Color(0); }
    void SetTextAlign(const Record& record) { state_.textAlign = record.Word(0); }

    void Create(Object object) {
        const auto free = std::find_if(objects_.begin(), objects_.end(), [](const Object& held) {
            return std::holds_alternative<std::monostate>(held);
        });
        if (free != objects_.end())
            *free = std::move(object);
        else if (objects_.size() < MostObjects)
            objects_.push_back(std::move(object));
    }
    void CreatePen(const Record& record) {
        static constexpr std::array Styles = {Qt::SolidLine,   Qt::DashLine,       Qt::DotLine,
                                              Qt::DashDotLine, Qt::DashDotDotLine, Qt::NoPen};
        const auto style = static_cast<std::size_t>(record.Word(0) & 0xF);
        QPen pen(record.Color(3));
        pen.setWidthF(std::abs(record.Word(1) * ScaleX()));
        pen.setStyle(style < Styles.size() ? Styles[style] : Qt::SolidLine);
        Create(pen);
    }
    void CreateBrush(const Record& record) {
        constexpr int Hollow = 1;
        Create(record.Word(0) == Hollow ? QBrush(Qt::NoBrush) : QBrush(record.Color(1)));
    }
    void CreateFont(const Record& record) {
        std::string_view name = record.Text(18, 32);
        name = name.substr(0, name.find('\0'));
        const double height = std::abs(record.Word(0) * ScaleY());
        FontSpec spec;
        spec.family = FromWindows1252(name);
        spec.sizeTwips = std::clamp(static_cast<int>(height), 1, 20000);
        spec.bold = record.Word(4) >= 600;
        spec.italic = record.Byte(10) != 0;
        spec.underline = record.Byte(11) != 0;
        Create(DocumentFont(spec));
    }
    void CreateOther(const Record&) { Create(OtherObject{}); }
    void SelectObject(const Record& record) {
        const std::size_t index = record.Count(0);
        if (index >= objects_.size()) return;
        if (const auto* pen = std::get_if<QPen>(&objects_[index])) painter_.setPen(*pen);
        if (const auto* brush = std::get_if<QBrush>(&objects_[index])) painter_.setBrush(*brush);
        if (const auto* font = std::get_if<QFont>(&objects_[index])) painter_.setFont(*font);
    }
    void DeleteObject(const Record& record) {
        if (record.Count(0) < objects_.size()) objects_[record.Count(0)] = std::monostate{};
    }

    void MoveTo(const Record& record) { state_.pen = At(record.Word(1), record.Word(0)); }
    void LineTo(const Record& record) {
        const QPointF end = At(record.Word(1), record.Word(0));
        painter_.drawLine(state_.pen, end);
        state_.pen = end;
    }
    void Polygon(const Record& record) {
        painter_.drawPolygon(Points(record, 1, record.Count(0)), state_.fill);
    }
    void Polyline(const Record& record) {
        painter_.drawPolyline(Points(record, 1, record.Count(0)));
    }
    void PolyPolygon(const Record& record) {
        QPainterPath path;
        path.setFillRule(state_.fill);
        const std::size_t count = std::min(record.Count(0), record.Words());
        std::size_t first = 1 + count;
        for (std::size_t i = 0; i < count && first < record.Words(); ++i) {
            path.addPolygon(Points(record, first, record.Count(1 + i)));
            path.closeSubpath();
            first += 2 * record.Count(1 + i);
        }
        painter_.drawPath(path);
    }
    void Rectangle(const Record& record) { painter_.drawRect(Corners(record, 0)); }
    void Ellipse(const Record& record) { painter_.drawEllipse(Corners(record, 0)); }
    void RoundRectangle(const Record& record) {
        painter_.drawRoundedRect(Corners(record, 2), std::abs(record.Word(1) * ScaleX() / 2),
                                 std::abs(record.Word(0) * ScaleY() / 2));
    }

    /// Start and length of an arc in sixteenths of a degree; its words stand end first, y ahead of
    /// x.
    std::pair<int, int> Angles(const Record& record) const {
        const QPointF centre = Corners(record, 4).center();
        const auto angle = [&](std::size_t index) {
            return QLineF(centre, At(record.Word(index + 1), record.Word(index))).angle();
        };
        const double start = angle(2);
        double length = angle(0) - start;
        if (length <= 0) length += 360;
        return {static_cast<int>(start * 16), static_cast<int>(length * 16)};
    }
    void Arc(const Record& record) {
        const auto [start, length] = Angles(record);
        painter_.drawArc(Corners(record, 4), start, length);
    }
    void Pie(const Record& record) {
        const auto [start, length] = Angles(record);
        painter_.drawPie(Corners(record, 4), start, length);
    }
    void Chord(const Record& record) {
        const auto [start, length] = Angles(record);
        painter_.drawChord(Corners(record, 4), start, length);
    }

    void Write(std::string_view bytes, QPointF at) {
        constexpr int Right = 2, Centre = 6, BaseLine = 24;
        const QString text = QString::fromStdString(FromWindows1252(bytes));
        const QFontMetricsF metrics(painter_.font());
        const double width = metrics.horizontalAdvance(text);
        if ((state_.textAlign & Centre) == Centre)
            at.rx() -= width / 2;
        else if (state_.textAlign & Right)
            at.rx() -= width;
        if ((state_.textAlign & BaseLine) != BaseLine) at.ry() += metrics.ascent();
        const QPen pen = painter_.pen();
        painter_.setPen(state_.textColor);
        painter_.drawText(at, text);
        painter_.setPen(pen);
    }
    void TextOut(const Record& record) {
        const std::size_t length = record.Count(0);
        const std::size_t behind = 1 + (length + 1) / 2;
        Write(record.Text(2, length), At(record.Word(behind + 1), record.Word(behind)));
    }
    void ExtTextOut(const Record& record) {
        constexpr int HasRectangle = 6;
        const std::size_t text = (record.Word(3) & HasRectangle) ? 16 : 8;
        Write(record.Text(text, record.Count(2)), At(record.Word(1), record.Word(0)));
    }

    /// `index`: where the height, width, y and x of the place stand.
    void DrawBitmap(const Record& record, std::size_t index) {
        const QImage image = DecodeBareBitmap(record.From(index + 4));
        const int x = record.Word(index + 3), y = record.Word(index + 2);
        const QRectF place(At(x, y), At(x + record.Word(index + 1), y + record.Word(index)));
        if (!image.isNull()) painter_.drawImage(place.normalized(), image);
    }
    void StretchBitmap(const Record& record) { DrawBitmap(record, 7); }
    void StretchBlock(const Record& record) { DrawBitmap(record, 6); }
    void CopyBlock(const Record& record) { DrawBitmap(record, 4); }
    void CopyBitmap(const Record& record) { DrawBitmap(record, 5); }
    void SetPixel(const Record& record) {
        const int x = record.Word(3), y = record.Word(2);
        painter_.fillRect(QRectF(At(x, y), At(x + 1, y + 1)).normalized(), record.Color(0));
    }
    /// A rectangle of the brush in use; its height and width stand ahead of its place.
    void FillBlock(const Record& record) {
        const int x = record.Word(5), y = record.Word(4);
        const QPointF end = At(x + record.Word(3), y + record.Word(2));
        painter_.fillRect(QRectF(At(x, y), end).normalized(), painter_.brush());
    }

    QPainter& painter_;
    QRectF box_;
    State state_;
    std::vector<State> saved_;
    std::vector<Object> objects_;
};

}  // namespace

bool PaintMetafile(QPainter& painter, std::string_view bytes, const QRectF& box) {
    if (!StartsWith(bytes, "\xD7\xCD\xC6\x9A")) return false;
    if (bytes.size() < PlaceableHeader + FileHeader) return false;
    painter.save();
    painter.setClipRect(box, Qt::IntersectClip);
    MetafilePlayer(painter, Record(bytes), box).Play(bytes.substr(PlaceableHeader + FileHeader));
    painter.restore();
    return true;
}

}  // namespace tendo

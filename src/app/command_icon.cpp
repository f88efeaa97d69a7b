#include "command_icon.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace mivo {
namespace {

/// Every icon is drawn on a square of this many units.
constexpr qreal kGrid = 24;

/// What icons are drawn with: a stroke and a fill in the text colour, and an accent for the part
/// that the command is about.
struct IconPainter {
  QPainter& painter;
  QColor ink;
  QColor accent;

  void Stroke(const QPolygonF& points, const QColor& color) const {
    painter.setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(points);
  }
  void Stroke(const QPolygonF& points) const { Stroke(points, ink); }
  void Outline(const QPainterPath& path, const QColor& color) const {
    painter.setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
  }
  void Fill(const QPolygonF& points, const QColor& color) const {
    painter.setPen(QPen(color, 0.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(color);
    painter.drawPolygon(points);
  }
  void Dot(QPointF at, const QColor& color) const {
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(at, 2.2, 2.2);
  }
};

QPolygonF Box(qreal left, qreal top, qreal right, qreal bottom) {
  return {{left, top}, {right, top}, {right, bottom}, {left, bottom}, {left, top}};
}

QPainterPath Ellipse(QPointF center, qreal rx, qreal ry) {
  QPainterPath path;
  path.addEllipse(center, rx, ry);
  return path;
}

void DrawSheet(const IconPainter& p) {
  p.Stroke({{14, 3}, {6, 3}, {6, 21}, {18, 21}, {18, 7}, {14, 3}, {14, 7}, {18, 7}});
}

void DrawFolder(const IconPainter& p) {
  p.Stroke({{3, 19}, {3, 5}, {9, 5}, {11, 8}, {19, 8}, {19, 11}});
  p.Stroke({{3, 19}, {7, 11}, {22, 11}, {18, 19}, {3, 19}});
}

void DrawDisk(const IconPainter& p) {
  p.Stroke({{4, 4}, {17, 4}, {20, 7}, {20, 20}, {4, 20}, {4, 4}});
  p.Stroke({{8, 4}, {8, 9}, {15, 9}, {15, 4}});
  p.Stroke({{7, 20}, {7, 13}, {17, 13}, {17, 20}});
}

void DrawUndo(const IconPainter& p) {
  QPainterPath path({5, 10});
  path.lineTo(13, 10);
  path.cubicTo(21, 10, 21, 20, 13, 20);
  path.lineTo(9, 20);
  p.Outline(path, p.ink);
  p.Stroke({{9, 5}, {4, 10}, {9, 15}});
}

void DrawScissors(const IconPainter& p) {
  p.Stroke({{7, 3}, {15, 16}});
  p.Stroke({{17, 3}, {9, 16}});
  p.Outline(Ellipse({7, 18.5}, 2.8, 2.8), p.ink);
  p.Outline(Ellipse({17, 18.5}, 2.8, 2.8), p.ink);
}

void DrawCopy(const IconPainter& p) {
  p.Stroke(Box(9, 8, 20, 21));
  p.Stroke({{6, 17}, {4, 17}, {4, 3}, {15, 3}, {15, 5}});
}

void DrawPaste(const IconPainter& p) {
  p.Stroke({{8, 5}, {5, 5}, {5, 21}, {19, 21}, {19, 5}, {16, 5}});
  p.Stroke(Box(8, 3, 16, 7));
  p.Stroke({{9, 12}, {15, 12}});
  p.Stroke({{9, 16}, {15, 16}});
}

void DrawDelete(const IconPainter& p) {
  p.Stroke({{4, 7}, {20, 7}});
  p.Stroke({{9, 7}, {9, 4}, {15, 4}, {15, 7}});
  p.Stroke({{6, 7}, {7, 21}, {17, 21}, {18, 7}});
  p.Stroke({{10, 11}, {10, 17}});
  p.Stroke({{14, 11}, {14, 17}});
}

void DrawMirror(const IconPainter& p) {
  p.Stroke({{12, 3}, {12, 6}});
  p.Stroke({{12, 10}, {12, 14}});
  p.Stroke({{12, 18}, {12, 21}});
  p.Fill({{9, 7}, {9, 18}, {3, 18}}, p.ink);
  p.Stroke({{15, 7}, {15, 18}, {21, 18}, {15, 7}}, p.accent);
}

void DrawRotate(const IconPainter& p) {
  QPainterPath path({5, 13});
  path.cubicTo(5, 3, 19, 3, 19, 12);
  p.Outline(path, p.ink);
  p.Stroke({{15, 9}, {19, 13}, {22.5, 8.5}});
  p.Stroke(Box(8, 13, 14, 21), p.accent);
}

void DrawMagnifier(const IconPainter& p) {
  p.Outline(Ellipse({10, 10}, 6.5, 6.5), p.ink);
  p.Stroke({{15, 15}, {21, 21}});
  p.Stroke({{7, 10}, {13, 10}}, p.accent);
}

void DrawZoomIn(const IconPainter& p) {
  DrawMagnifier(p);
  p.Stroke({{10, 7}, {10, 13}}, p.accent);
}

void DrawSelector(const IconPainter& p) {
  p.Fill({{6, 3}, {6, 18}, {10, 14.5}, {12.5, 20.5}, {15, 19.5}, {12.5, 13.5}, {18, 13.5}}, p.ink);
}

void DrawPin(const IconPainter& p) {
  p.Stroke({{14, 3}, {14, 21}});
  p.Stroke({{14, 3}, {21, 3}});
  p.Stroke({{14, 21}, {21, 21}});
  p.Stroke({{3, 12}, {14, 12}}, p.accent);
  p.Dot({4, 12}, p.accent);
}

void DrawLine(const IconPainter& p) {
  p.Stroke({{5, 19}, {19, 5}});
  p.Dot({5, 19}, p.accent);
  p.Dot({19, 5}, p.accent);
}

void DrawCircle(const IconPainter& p) {
  p.Outline(Ellipse({12, 12}, 9, 6.5), p.ink);
}

void DrawPolygon(const IconPainter& p) {
  p.Stroke({{5, 8}, {14, 4}, {20, 12}, {15, 20}, {6, 18}, {5, 8}});
  for (const QPointF corner :
       {QPointF(5, 8), QPointF(14, 4), QPointF(20, 12), QPointF(15, 20), QPointF(6, 18)}) {
    p.Dot(corner, p.accent);
  }
}

void DrawArc(const IconPainter& p) {
  QPainterPath path({20, 18});
  path.cubicTo(20, 8, 14, 5, 5, 5);
  p.Outline(path, p.ink);
  p.Dot({5, 18}, p.accent);
  p.Dot({20, 18}, p.ink);
  p.Dot({5, 5}, p.ink);
}

void DrawText(const IconPainter& p) {
  p.Stroke({{5, 7}, {5, 4}, {19, 4}, {19, 7}});
  p.Stroke({{12, 4}, {12, 20}});
  p.Stroke({{9, 20}, {15, 20}});
}

void DrawNodes(const IconPainter& p) {
  QPainterPath path({5, 18});
  path.cubicTo(5, 6, 19, 18, 19, 6);
  p.Outline(path, p.ink);
  p.Stroke(Box(3, 16, 7, 20), p.accent);
  p.Stroke(Box(17, 4, 21, 8), p.accent);
}

void DrawGrid(const IconPainter& p) {
  p.Stroke(Box(3, 5, 21, 19));
  p.Stroke({{3, 10}, {21, 10}});
  p.Stroke({{3, 14.5}, {21, 14.5}});
  p.Stroke({{9, 5}, {9, 19}});
}

void DrawChip(const IconPainter& p) {
  p.Stroke(Box(8, 3, 16, 21));
  for (const qreal y : {7.0, 12.0, 17.0}) {
    p.Stroke({{4, y}, {8, y}});
    p.Stroke({{16, y}, {20, y}});
  }
}

void DrawNewComponent(const IconPainter& p) {
  p.Stroke({{14, 21}, {6, 21}, {6, 3}, {14, 3}, {14, 12}});
  for (const qreal y : {7.0, 12.0, 17.0}) p.Stroke({{2, y}, {6, y}});
  p.Stroke({{14, 7}, {18, 7}});
  p.Stroke({{18, 14}, {18, 22}}, p.accent);
  p.Stroke({{14, 18}, {22, 18}}, p.accent);
}

void DrawUp(const IconPainter& p) {
  p.Stroke({{12, 20}, {12, 4}});
  p.Stroke({{5, 11}, {12, 4}, {19, 11}});
}

void DrawDown(const IconPainter& p) {
  p.Stroke({{12, 4}, {12, 20}});
  p.Stroke({{5, 13}, {12, 20}, {19, 13}});
}

void DrawProgram(const IconPainter& p) {
  p.Fill(Box(1, 1, 23, 23), QColor(24, 84, 64));
  const QColor light(240, 250, 244);
  p.Stroke({{8, 5}, {8, 19}, {19, 12}, {8, 5}}, light);
  p.Stroke({{3, 9}, {8, 9}}, light);
  p.Stroke({{3, 15}, {8, 15}}, light);
  p.Stroke({{19, 12}, {22, 12}}, light);
}

using Draw = void (*)(const IconPainter&);

Draw DrawingOf(Command command) {
  switch (command) {
    case Command::New:
      return DrawSheet;
    case Command::Open:
      return DrawFolder;
    case Command::Save:
      return DrawDisk;
    case Command::Undo:
      return DrawUndo;
    case Command::Cut:
      return DrawScissors;
    case Command::Copy:
      return DrawCopy;
    case Command::Paste:
      return DrawPaste;
    case Command::Delete:
      return DrawDelete;
    case Command::Mirror:
      return DrawMirror;
    case Command::Rotate:
      return DrawRotate;
    case Command::ZoomIn:
      return DrawZoomIn;
    case Command::ZoomOut:
      return DrawMagnifier;
    case Command::Selector:
      return DrawSelector;
    case Command::PinTool:
      return DrawPin;
    case Command::LineTool:
      return DrawLine;
    case Command::CircleTool:
      return DrawCircle;
    case Command::PolygonTool:
      return DrawPolygon;
    case Command::ArcTool:
      return DrawArc;
    case Command::TextTool:
      return DrawText;
    case Command::EditNodeMode:
      return DrawNodes;
    case Command::PinProperty:
      return DrawGrid;
    case Command::ComponentProperty:
      return DrawChip;
    case Command::NewComponent:
      return DrawNewComponent;
    case Command::MoveNameUp:
      return DrawUp;
    case Command::MoveNameDown:
      return DrawDown;
    default:
      return nullptr;
  }
}

/// Draws anew for every size, state and palette.
class CommandIconEngine final : public QIconEngine {
 public:
  explicit CommandIconEngine(Draw draw) : draw_(draw) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const QPalette palette = QApplication::palette();
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QColor ink = palette.color(group, QPalette::ButtonText);
    const bool isDark = palette.color(QPalette::Button).lightness() < 128;
    const QColor accent = isDark ? QColor(110, 200, 140) : QColor(0, 128, 0);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const int side = qMin(rect.width(), rect.height());
    painter->translate(rect.x() + (rect.width() - side) / 2.0,
                       rect.y() + (rect.height() - side) / 2.0);
    painter->scale(side / kGrid, side / kGrid);
    draw_({*painter, ink, mode == QIcon::Disabled ? ink : accent});
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, {{}, size}, mode, state);
    return pixmap;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new CommandIconEngine(draw_); }

 private:
  Draw draw_;
};

}  // namespace

QIcon CommandIcon(Command command) {
  const Draw draw = DrawingOf(command);
  return draw == nullptr ? QIcon() : QIcon(new CommandIconEngine(draw));
}

QIcon ProgramIcon() {
  return QIcon(new CommandIconEngine(DrawProgram));
}

}  // namespace mivo

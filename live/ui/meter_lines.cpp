#include "live/ui/meter_lines.h"

#include <QVBoxLayout>
#include <cstddef>

namespace plenovia {

namespace {

// Colour and form, for those who do not see the colour.
QString Sign(Light light) {
  const auto sign = [](const char* colour, char16_t form) {
    return QStringLiteral("<span style='color:%1'>%2</span>")
        .arg(QString::fromLatin1(colour))
        .arg(QChar(form));
  };
  switch (light) {
    case Light::kGreen:
      return sign("#2c9a4b", u'\u25cf');
    case Light::kYellow:
      return sign("#d09400", u'\u25b2');
    case Light::kRed:
      return sign("#c8322d", u'\u25a0');
    case Light::kNone:
      break;
  }
  return sign("#888888", u'\u25cb');
}

QString Line(Light light, const QString& figure, const QString& advice) {
  return QStringLiteral("%1 <b>%2</b> %3").arg(Sign(light), figure, advice);
}

QString Percent(double share) {
  return QStringLiteral("%1 %").arg(qRound(100 * share));
}

QString RepeatsLine(const RepeatReading& reading) {
  const QString link = QStringLiteral(" <a href='screen'>%1</a>").arg(MeterLines::tr("Screen..."));
  if (reading.light == Light::kNone) {
    return Line(reading.light, MeterLines::tr("Repeats"),
                MeterLines::tr("the size of this screen is not known.") + link);
  }
  QString advice = MeterLines::tr("comfortable for the eyes.");
  if (reading.millimetres > kMostMillimetres) {
    advice = MeterLines::tr("eyes would have to diverge: make the gap smaller.");
  } else if (reading.millimetres > kComfortTo) {
    advice = MeterLines::tr("hard to fuse: a smaller gap helps.");
  } else if (reading.millimetres < kComfortFrom) {
    advice = MeterLines::tr("little depth: a larger gap gives more.");
  }
  return Line(reading.light,
              MeterLines::tr("Repeats every %1 mm:").arg(reading.millimetres, 0, 'f', 1),
              advice + link);
}

QString StepsLine(const StepsReading& reading) {
  QString advice = MeterLines::tr("fine.");
  if (reading.light == Light::kYellow) {
    advice = MeterLines::tr("a smaller depth range or a larger gap keeps more.");
  } else if (reading.light == Light::kRed) {
    advice = MeterLines::tr("no depth is left: fit the depth range.");
  }
  return Line(reading.light,
              MeterLines::tr("%1 of %2 levels survive:").arg(reading.steps).arg(reading.levels),
              advice);
}

QString FoundLine(const std::optional<double>& found) {
  if (!found)
    return Line(Light::kNone, MeterLines::tr("Found again:"), MeterLines::tr("not known."));
  const Light light = LightOfFound(*found);
  QString advice = MeterLines::tr("the depth can be seen.");
  if (light == Light::kYellow) advice = MeterLines::tr("parts are hard to see.");
  if (light == Light::kRed) advice = MeterLines::tr("another pattern or a flatter range helps.");
  return Line(light, MeterLines::tr("Found again: %1:").arg(Percent(*found)), advice);
}

QString SteepLine(const SteepReading& reading) {
  QString advice = MeterLines::tr("smooth enough.");
  if (reading.light == Light::kYellow) advice = MeterLines::tr("some edges smear.");
  if (reading.light == Light::kRed) advice = MeterLines::tr("edges smear: a flatter range helps.");
  return Line(reading.light, MeterLines::tr("Steep edges: %1:").arg(Percent(reading.share)),
              advice);
}

QString PatternLine(const PatternReading& reading) {
  if (reading.repeatsAt > 0) {
    return Line(reading.light, MeterLines::tr("Pattern repeats at %1 px:").arg(reading.repeatsAt),
                MeterLines::tr("eyes may lock there; take one as wide as the gap."));
  }
  QString advice = MeterLines::tr("easy to match.");
  if (reading.light == Light::kYellow) advice = MeterLines::tr("plain places show no depth.");
  if (reading.light == Light::kRed) advice = MeterLines::tr("too plain to show depth.");
  return Line(reading.light, MeterLines::tr("Pattern plain: %1:").arg(Percent(reading.plain)),
              advice);
}

}  // namespace

MeterLines::MeterLines(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("liveMeter"));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins({});
  rows->setSpacing(1);
  for (QLabel*& line : lines_) {
    line = new QLabel(this);
    line->setTextFormat(Qt::RichText);
    line->setWordWrap(true);
    rows->addWidget(line);
  }
  lines_.front()->setTextInteractionFlags(Qt::LinksAccessibleByMouse |
                                          Qt::LinksAccessibleByKeyboard);
  connect(lines_.front(), &QLabel::linkActivated, this, &MeterLines::ScreenSizeAsked);
}

void MeterLines::Show(const LiveMeter& meter) {
  const std::array<QString, 5> texts = {RepeatsLine(meter.repeats), StepsLine(meter.steps),
                                        FoundLine(meter.found), SteepLine(meter.steep),
                                        PatternLine(meter.pattern)};
  for (std::size_t i = 0; i < texts.size(); ++i) lines_[i]->setText(texts[i]);
}

}  // namespace plenovia

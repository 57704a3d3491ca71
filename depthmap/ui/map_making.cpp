#include "depthmap/ui/map_making.h"

#include <utility>
#include <vector>

#include "depthmap/ui/steps_dialog.h"
#include "depthmap/ui/text_dialog.h"

namespace plenovia {

void AskForSteps(QWidget* owner, TDepthList& list) {
  const TDepthObj* shape = list.Selected();
  if (shape == nullptr || !CanMakeSteps(*shape)) return;
  StepsDialog dialog(owner, shape->GetLevel());
  if (dialog.exec() == QDialog::Accepted) MakeStepsOfSelected(list, dialog.Plan());
}

bool AskForText(QWidget* owner, TDepthList& list, const DepthPoint& middle, TextStyle& style) {
  TextDialog dialog(owner, style);
  if (dialog.exec() != QDialog::Accepted) return false;
  const TextStyle chosen = dialog.Style();
  auto shapes = TextShapes(chosen, list.CurrentLevel());
  if (shapes.empty()) return false;
  const PixelRect box = BoxAround(shapes);
  std::vector<const TDepthObj*> letters;
  const MapEdit edit(list, EditKind::kText);
  for (auto& shape : shapes) {
    const DepthRect rect = shape->GetRect();
    shape->MoveTo(
        rect.Shifted(middle.x - (box.right - box.left) / 2, middle.y - (box.bottom - box.top) / 2));
    letters.push_back(shape.get());
    list.AddObject(std::move(shape));
  }
  list.SelectAll(letters);
  style = chosen;
  return true;
}

}  // namespace plenovia

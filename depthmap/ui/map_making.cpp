#include "depthmap/ui/map_making.h"

#include <utility>
#include <vector>

#include "depthmap/ui/steps_dialog.h"
#include "depthmap/ui/text_dialog.h"

namespace plenovia {

void AskForSteps(QWidget* owner, const std::shared_ptr<TDepthList>& list) {
  const std::shared_ptr<TDepthList> kept = list;
  const TDepthObj* shape = kept->Selected();
  if (shape == nullptr || !CanMakeSteps(*shape)) return;
  StepsDialog dialog(owner, shape->GetLevel());
  if (dialog.exec() == QDialog::Accepted) MakeStepsOfSelected(*kept, dialog.Plan());
}

bool AskForText(QWidget* owner, const std::shared_ptr<TDepthList>& list, const DepthPoint& middle,
                TextStyle& style) {
  const std::shared_ptr<TDepthList> kept = list;
  TextDialog dialog(owner, style);
  if (dialog.exec() != QDialog::Accepted) return false;
  const TextStyle chosen = dialog.Style();
  auto shapes = TextShapes(chosen, kept->CurrentLevel());
  if (shapes.empty()) return false;
  const PixelRect box = BoxAround(shapes);
  std::vector<const TDepthObj*> letters;
  const MapEdit edit(*kept, EditKind::kText);
  for (auto& shape : shapes) {
    const DepthRect rect = shape->GetRect();
    shape->MoveTo(
        rect.Shifted(middle.x - (box.right - box.left) / 2, middle.y - (box.bottom - box.top) / 2));
    letters.push_back(shape.get());
    kept->AddObject(std::move(shape));
  }
  kept->SelectAll(letters);
  style = chosen;
  return true;
}

}  // namespace plenovia

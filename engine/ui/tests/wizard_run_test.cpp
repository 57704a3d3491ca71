#include "engine/ui/wizard_run.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <functional>
#include <memory>
#include <vector>

#include "images/ui/figure_titles.h"
#include "platform/file_io.h"
#include "platform/profile_file.h"
#include "platform/ui/text.h"
#include "testing/picture_compare.h"
#include "testing/temp_folder.h"
#include "testing/ui/dialog_answers.h"

namespace plenovia {
namespace {

template <class Control>
Control& Get(QDialog& dialog, const QString& name) {
  auto* control = dialog.findChild<Control*>(name);
  EXPECT_NE(control, nullptr) << name.toStdString();
  return *control;
}

// Each stop of the Tab key is to the right of the last one or below it.
void ExpectTabFollowsTheEye(QDialog& dialog) {
  const QWidget* last = nullptr;
  for (QWidget* stop = dialog.nextInFocusChain(); stop != &dialog;
       stop = stop->nextInFocusChain()) {
    if ((stop->focusPolicy() & Qt::TabFocus) == 0) continue;
    if (last != nullptr) {
      const QPoint step = stop->mapTo(&dialog, QPoint()) - last->mapTo(&dialog, QPoint());
      EXPECT_TRUE(step.y() > 2 || (step.y() >= -2 && step.x() > 0))
          << last->objectName().toStdString() << " to " << stop->objectName().toStdString();
    }
    last = stop;
  }
}

// A page as the user meets it.
class Page {
 public:
  explicit Page(QDialog& dialog) : dialog_(dialog) {}

  int Number() const { return dialog_.objectName().mid(4).toInt(); }
  void Press(int button) {
    Get<QPushButton>(dialog_, QStringLiteral("button%1").arg(button)).click();
  }
  void Key(Qt::Key key) { QTest::keyClick(&dialog_, key); }
  bool Has(int button) {
    return dialog_.findChild<QPushButton*>(QStringLiteral("button%1").arg(button)) != nullptr;
  }
  bool IsEnabled(int button) {
    return Get<QPushButton>(dialog_, QStringLiteral("button%1").arg(button)).isEnabled();
  }
  QLineEdit& Edit(int id) { return Get<QLineEdit>(dialog_, QStringLiteral("edit%1").arg(id)); }
  std::string Text(int edit) { return Edit(edit).text().toStdString(); }
  void Type(int edit, const char* text) {
    Edit(edit).selectAll();
    QTest::keyClicks(&Edit(edit), QLatin1String(text));
  }
  QRadioButton& Radio(int id) {
    return Get<QRadioButton>(dialog_, QStringLiteral("radio%1").arg(id));
  }
  QDialog& Window() { return dialog_; }
  std::string Note() { return Get<QLabel>(dialog_, QStringLiteral("note")).text().toStdString(); }
  std::string Label() {
    return Get<QLabel>(dialog_, QStringLiteral("label311")).text().toStdString();
  }

 private:
  QDialog& dialog_;
};

constexpr int kNext = 101;
constexpr int kBack = 102;
constexpr int kCancel = 2;

class Wizard : public testing::Test {
 protected:
  Wizard() {
    Random random(6);
    for (int i = 0; i < 4; ++i) {
      library.AppendPattern(std::make_shared<const IndexedImage>(RandomPicture(random, 9, 9, 16)));
    }
    library.SelectPattern(2);
  }

  // What the user does when the page of this number shows.
  void On(int number, std::function<void(Page&)> act) {
    answers.Add([=](QDialog& dialog) {
      Page page(dialog);
      EXPECT_EQ(page.Number(), number);
      EXPECT_EQ(page.Has(kBack), number != 201);
      ExpectTabFollowsTheEye(dialog);
      act(page);
    });
  }
  void OnPress(int number, int button) {
    On(number, [=](Page& page) { page.Press(button); });
  }
  // The figure dialog: chooses this one, or cancels when it is -1.
  void OnFigures(int figure) {
    answers.Add([=](QDialog& dialog) {
      EXPECT_EQ(dialog.windowTitle().toStdString(), "Math SIRDS Selection");
      Get<QListWidget>(dialog, QStringLiteral("list101")).setCurrentRow(figure);
      Page(dialog).Press(figure < 0 ? kCancel : 1);
    });
  }
  // Changes everything that the first pages choose, up to the page of this number.
  void GoForwardTo(int number) {
    if (number > 201) {
      On(201, [](Page& page) {
        page.Radio(104).click();
        page.Press(kNext);
      });
      OnFigures(4);
    }
    if (number > 202) {
      On(202, [](Page& page) {
        page.Type(104, "640");
        page.Type(105, "abc");
        page.Type(103, "80 levels");
        page.Type(114, "-20");
        page.Press(kNext);
      });
    }
    if (number > 203) {
      On(203, [](Page& page) {
        EXPECT_EQ(page.Label(), "Pattern No. 3");
        page.Press(301);
        page.Press(301);
        EXPECT_EQ(page.Label(), "Pattern No. 1");
        page.Press(kNext);
      });
    }
  }
  std::optional<WizardChoice> Run() {
    return RunWizard(nullptr, settings, library, settingsFile, levels);
  }
  ProfileFile Written() const { return ProfileFile::Load(settingsFile).value(); }
  void Write(int type, const std::string& name, int figure) {
    ProfileFile profile;
    profile.SetInt("wizard", "source_type", type);
    profile.SetInt("wizard", "figure", figure);
    profile.SetText("wizard", "source_name", name);
    profile.SetInt("DEMO", "w", 77);
    ASSERT_TRUE(profile.Save(settingsFile));
  }

  TempFolder folder;
  std::filesystem::path settingsFile = folder / "PLENOVIA.INI";
  TSirdsSettings settings{.dx = 5, .zmax = 63, .zmin = 1, .w = 500, .h = 300};
  const TSirdsSettings before = settings;
  TSirdPatt library;
  LevelsFinder levels;
  DialogAnswers answers;
};

TEST_F(Wizard, FirstRunOffersTheFirstFigure) {
  On(201, [](Page& page) {
    EXPECT_TRUE(page.Radio(104).isChecked());
    EXPECT_EQ(page.Edit(105).text(), FigureTitle(0));
    page.Key(Qt::Key_Return);
  });
  On(202, [](Page& page) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return page.Edit(104).hasFocus(); }));
    EXPECT_EQ(page.Text(104), "500");
    EXPECT_EQ(page.Text(105), "300");
    EXPECT_EQ(page.Text(103), "1");
    EXPECT_EQ(page.Text(114), "63");
    page.Key(Qt::Key_Return);
  });
  On(203, [](Page& page) { page.Key(Qt::Key_Return); });
  On(204, [](Page& page) {
    EXPECT_TRUE(page.Radio(104).isChecked());
    page.Key(Qt::Key_Return);
  });
  const auto source = Run();
  ASSERT_TRUE(source);
  EXPECT_EQ(source->type, kFigureSource);
  EXPECT_EQ(source->figure, 0);
  EXPECT_EQ(settings, before);
  EXPECT_EQ(library.GetCurrentIndex(), 2);
  EXPECT_EQ(Written().GetInt("wizard", "source_type", 0), 3);
  EXPECT_EQ(Written().GetText("wizard", "source_name", ""), FigureTitle(0).toStdString());
}

TEST_F(Wizard, TakesWhatEachPageChooses) {
  Write(1, "/pictures/Scene.BMP", 2);
  GoForwardTo(204);
  On(204, [](Page& page) {
    page.Radio(105).click();
    page.Press(kNext);
  });
  const auto source = Run();
  ASSERT_TRUE(source);
  EXPECT_EQ(source->type, kFigureSource);
  EXPECT_EQ(source->figure, 4);
  EXPECT_EQ(source->name, FigureTitle(4));
  EXPECT_EQ(
      settings,
      (TSirdsSettings{.dx = 5, .zmax = -20, .zmin = 80, .w = 640, .h = 0, .scanMethod = kFeucht}));
  EXPECT_EQ(library.GetCurrentIndex(), 0);
  EXPECT_EQ(Written().GetInt("wizard", "figure", 0), 4);
  EXPECT_EQ(Written().GetInt("DEMO", "w", 0), 77);
}

TEST_F(Wizard, BackShowsWhatWasChosenAndUndoesTheBrowsing) {
  GoForwardTo(204);
  OnPress(204, kBack);
  On(203, [this](Page& page) {
    EXPECT_EQ(page.Label(), "Pattern No. 1");
    page.Press(302);
    EXPECT_EQ(library.GetCurrentIndex(), 3);
    page.Press(kBack);
  });
  On(202, [this](Page& page) {
    EXPECT_EQ(library.GetCurrentIndex(), 0);
    EXPECT_EQ(page.Text(104), "640");
    EXPECT_EQ(page.Text(105), "0");
    EXPECT_EQ(page.Text(103), "80");
    page.Type(104, "111");
    page.Press(kBack);
  });
  On(201, [](Page& page) {
    EXPECT_TRUE(page.Radio(104).isChecked());
    EXPECT_EQ(page.Edit(105).text(), FigureTitle(4));
    page.Press(kNext);
  });
  On(202, [](Page& page) {
    EXPECT_EQ(page.Text(104), "640");
    page.Press(kNext);
  });
  OnPress(203, kNext);
  OnPress(204, kNext);
  const auto source = Run();
  ASSERT_TRUE(source);
  EXPECT_EQ(source->figure, 4);
  EXPECT_EQ(settings.w, 640);
  EXPECT_EQ(library.GetCurrentIndex(), 0);
}

class WizardCancel : public Wizard, public testing::WithParamInterface<int> {};

TEST_P(WizardCancel, RestoresRecordAndPattern) {
  GoForwardTo(GetParam());
  On(GetParam(), [](Page& page) {
    if (page.Has(301)) page.Press(301);
    page.Number() % 2 == 0 ? page.Press(kCancel) : page.Key(Qt::Key_Escape);
  });
  EXPECT_FALSE(Run());
  EXPECT_EQ(settings, before);
  EXPECT_EQ(library.GetCurrentIndex(), 2);
  EXPECT_EQ(std::filesystem::exists(settingsFile), GetParam() > 201);
}

INSTANTIATE_TEST_SUITE_P(Pages, WizardCancel, testing::Values(201, 202, 203, 204));

TEST_F(Wizard, ATypedPathIsGivenAsTyped) {
  Write(1, "old.bmp", 0);
  ASSERT_TRUE(WriteFile(folder / "Scene.BMP", std::vector<std::uint8_t>{0}));
  const std::string typed = (folder / "Scene.BMP").string();
  On(201, [&](Page& page) {
    EXPECT_TRUE(page.Radio(102).isChecked());
    EXPECT_EQ(page.Text(105), "old.bmp");
    page.Edit(105).clear();
    EXPECT_FALSE(page.IsEnabled(kNext));
    page.Press(kNext);
    for (const std::string& bad :
         {std::string("/no/such/Folder/Scene.BMP"), folder.path().string()}) {
      page.Type(105, bad.c_str());
      page.Press(kNext);
      EXPECT_EQ(page.Edit(105).selectedText().toStdString(), bad) << "the page stays";
    }
    page.Type(105, typed.c_str());
    page.Press(kNext);
  });
  answers.AddMessage(QStringLiteral("There is no file \"/no/such/Folder/Scene.BMP\"."),
                     QStringLiteral("SIRDS Wizard"));
  answers.AddMessage(
      QStringLiteral("\"%1\" is not a file that can be read.").arg(PathToQString(folder.path())),
      QStringLiteral("SIRDS Wizard"));
  On(202, [](Page& page) {
    EXPECT_FALSE(page.Edit(104).isEnabled());
    EXPECT_FALSE(page.Edit(105).isEnabled());
    EXPECT_EQ(page.Note(), "Width and height are those of the picture or depth map.");
    EXPECT_EQ(page.Edit(103).selectedText(), QStringLiteral("1"));
    page.Press(kNext);
  });
  for (const int number : {203, 204}) OnPress(number, kNext);
  const auto source = Run();
  ASSERT_TRUE(source);
  EXPECT_EQ(source->type, kBitmapSource);
  EXPECT_EQ(source->name.toStdString(), typed);
}

TEST_F(Wizard, PagesKeepPlaceAndSize) {
  const QRect place(40, 30, 640, 480);
  On(201, [&](Page& page) {
    page.Window().setGeometry(place);
    page.Press(kNext);
  });
  for (const int number : {202, 203, 204}) {
    On(number, [&](Page& page) {
      EXPECT_EQ(page.Window().geometry(), place);
      page.Press(kNext);
    });
  }
  EXPECT_TRUE(Run());
  std::vector<QSize> sizes;
  for (const int number : {201, 202, 203, 204}) {
    On(number, [&](Page& page) {
      sizes.push_back(page.Window().size());
      page.Press(kNext);
    });
  }
  EXPECT_TRUE(Run());
  EXPECT_EQ(sizes, std::vector(4, sizes.front()));
}

TEST_F(Wizard, TheSizePageTellsWhatIsNotTakenAsTyped) {
  OnPress(201, kNext);
  On(202, [](Page& page) {
    EXPECT_EQ(page.Note(), "");
    QTest::keyClicks(&page.Edit(104), QStringLiteral("600"));
    EXPECT_EQ(page.Text(104), "600") << "what is typed takes the place of the old width";
    page.Type(105, "abc");
    EXPECT_EQ(page.Note(), "Height abc becomes 0. A stereogram of 600 x 0 pixels cannot be made.");
    page.Press(kCancel);
  });
  EXPECT_FALSE(Run());
}

TEST_F(Wizard, AFileIsChosenOrTheChoiceCancelled) {
  const QString map = PathToQString(folder / "Map.RDS");
  ASSERT_TRUE(WriteFile(folder / "Map.RDS", std::vector<std::uint8_t>{0}));
  On(201, [=](Page& page) {
    page.Radio(102).click();
    EXPECT_TRUE(page.Radio(104).isChecked());
    EXPECT_EQ(page.Edit(105).text(), FigureTitle(0));
    page.Radio(103).click();
    EXPECT_TRUE(page.Radio(103).isChecked());
    EXPECT_EQ(page.Edit(105).text(), map);
    page.Radio(104).click();
    EXPECT_TRUE(page.Radio(103).isChecked());
    page.Press(kNext);
  });
  answers.AddFile({});
  answers.AddFile(map);
  OnFigures(-1);
  for (const int number : {202, 203, 204}) OnPress(number, kNext);
  const auto source = Run();
  ASSERT_TRUE(source);
  EXPECT_EQ(source->type, kDepthMapSource);
  EXPECT_EQ(source->name, map);
}

TEST_F(Wizard, NonsenseInTheSettingsIsTheFirstFigure) {
  Write(9, "something", 4711);
  On(201, [](Page& page) {
    EXPECT_TRUE(page.Radio(104).isChecked());
    EXPECT_EQ(page.Text(105), "something");
    page.Press(kNext);
  });
  for (const int number : {202, 203, 204}) OnPress(number, kNext);
  EXPECT_EQ(Run()->figure, 0);
}

TEST_F(Wizard, WorksWithoutASettingsFileThatCanBeWritten) {
  settingsFile = folder.path();
  GoForwardTo(202);
  OnPress(202, kBack);
  On(201, [](Page& page) {
    EXPECT_EQ(page.Edit(105).text(), FigureTitle(4));
    page.Press(kCancel);
  });
  EXPECT_FALSE(Run());
}

}  // namespace
}  // namespace plenovia

// Walks through the window on demo homes and takes a picture of every state, light and dark.
//   tour CHAPTER… FOLDER     CHAPTER: screens, runs, beginning, awkward, scaled

#include <QtCore/QTextStream>
#include <QtGui/QGuiApplication>

#include <algorithm>
#include <array>

#include "app/QuillmereApp.h"
#include "demo/tour/Chapters.h"

namespace {

using namespace quillmere;
using namespace Qt::StringLiterals;

struct Chapter {
  QLatin1StringView name;
  void (*tell)(demo::Album& album) = nullptr;
  /// The number of its first picture, so that a chapter that grows renames no other's.
  int place = 0;
};

constexpr std::array chapters = {Chapter{"screens"_L1, &demo::captureScreens, 1},
                                 Chapter{"runs"_L1, &demo::captureRuns, 101},
                                 Chapter{"awkward"_L1, &demo::captureAwkward, 201},
                                 Chapter{"scaled"_L1, &demo::captureScaled, 401},
                                 Chapter{"beginning"_L1, &demo::captureBeginning, 901}};

const Chapter* chapterOf(const QString& name) {
  const auto* const found = std::ranges::find(chapters, name, &Chapter::name);
  return found == chapters.end() ? nullptr : found;
}

}  // namespace

int main(int argc, char** argv) {
  QuillmereApp::prepare();
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments().sliced(1);
  const QStringList names = arguments.first(std::max<qsizetype>(arguments.size() - 1, 0));
  if (names.isEmpty() || !std::ranges::all_of(names, chapterOf)) {
    QTextStream(stderr) << "usage: tour CHAPTER... FOLDER\n"
                           "chapters: screens runs awkward scaled beginning\n";
    return 2;
  }
  const QDir folder(arguments.constLast());
  if (!folder.mkpath(u"."_s)) {
    QTextStream(stderr) << "tour: the folder " << folder.path() << " cannot be made\n";
    return EXIT_FAILURE;
  }
  try {
    for (const QString& name : names) {
      const Chapter& chapter = *chapterOf(name);
      demo::Album album(folder, chapter.place);
      chapter.tell(album);
    }
  } catch (const demo::TourError& error) {
    QTextStream(stderr) << error.what() << '\n';
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}

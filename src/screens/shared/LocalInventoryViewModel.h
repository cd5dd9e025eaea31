#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include <functional>

#include "screens/components/AnnouncementFilter.h"
#include "screens/shared/LocalInventoryInputs.h"

namespace quillmere {

/// What the screens of the local inventory have in common: they are told what is known of it, say
/// what stands in place of a list, and ask for scans. Those who derive from it name it with its
/// namespace, by which alone qmllint finds it. UI thread only.
class LocalInventoryViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("What the view models of some screens have in common")
  Q_PROPERTY(Phase phase READ phase NOTIFY changed)
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString text READ text NOTIFY changed)
  Q_PROPERTY(QString symbolName READ symbolName NOTIFY changed)
  Q_PROPERTY(QString rescanWarning READ rescanWarning NOTIFY changed)
  Q_PROPERTY(QString accessProblemText READ accessProblemText NOTIFY changed)
  Q_PROPERTY(bool needsPrefix READ needsPrefix NOTIFY changed)
  Q_PROPERTY(QString progressText READ progressText NOTIFY changed)
  Q_PROPERTY(double progressFraction READ progressFraction NOTIFY changed)

 public:
  using Clock = std::function<QDateTime()>;

  /// What is known of the inventory, by the alternatives of `InstalledPackagesState`.
  enum Phase { Idle, AccessNeeded, Loading, Loaded, Failed };
  Q_ENUM(Phase)

  [[nodiscard]] const LocalInventoryInputs& inputs() const { return inputs_; }

  void setInputs(const LocalInventoryInputs& inputs);

  [[nodiscard]] Phase phase() const;

  /// Why what is shown is older than what is known or was done since; empty otherwise.
  [[nodiscard]] QString rescanWarning() const;

  /// Which prefix could not be read and why, so that it may be scanned again; empty otherwise.
  [[nodiscard]] QString accessProblemText() const;
  /// Whether a scan could not be made, since no prefix is selected.
  [[nodiscard]] bool needsPrefix() const;

  // What the screen says in place of its list.
  [[nodiscard]] virtual QString title() const = 0;
  [[nodiscard]] virtual QString text() const = 0;
  [[nodiscard]] virtual QString symbolName() const = 0;

  /// How far a scan has come: "12 of 30 packages scanned"; empty before the first package.
  [[nodiscard]] QString progressText() const;
  /// The same from 0 to 1; negative where all is not known.
  [[nodiscard]] double progressFraction() const;

 Q_SIGNALS:
  /// Any of the properties may read otherwise now.
  void changed();
  /// Something came about that a user who does not see the screen wants to know.
  void announced(const QString& text);
  // What the user wants of the main window.
  void scanRequested();
  void cancelScanRequested();
  void selectPrefixRequested();

 protected:
  LocalInventoryViewModel(Clock clock, QObject* parent);

  [[nodiscard]] QDateTime now() const { return clock_(); }

  /// Why the last scan failed; only while `phase` says that it did.
  [[nodiscard]] const QString& failure() const;

  /// Updates what depends on the inputs; `previous` are the ones that they replaced.
  virtual void applyInputs(const LocalInventoryInputs& previous) = 0;
  /// What a loaded inventory comes to, as it is said aloud.
  [[nodiscard]] virtual QString spokenResult() const = 0;

  /// Whether the screen compares with the catalog.
  [[nodiscard]] virtual bool usesCatalog() const { return true; }

  void notifyChanges();

 private:
  [[nodiscard]] QString spokenState() const;

  Clock clock_;
  LocalInventoryInputs inputs_;
  AnnouncementFilter spoken_;
};

}  // namespace quillmere

#pragma once

#include <mutex>
#include <string>
#include <string_view>

namespace glossmill {

enum class Loudness { Quiet, Normal, Log, Verbose };
enum class Paint { Plain, Heading, Good, Gap, Bad };

/// Where a command speaks: data on standard output, everything else on standard error. Colour and the progress line
/// appear on a terminal only. Messages may come from any thread, the rest is for the main thread.
class Console {
 public:
  Console();
  ~Console() { flush(); }
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;

  /// Messages before are Normal.
  void setLoudness(Loudness loudness) { m_loudness = loudness; }
  bool isQuiet() const { return m_loudness == Loudness::Quiet; }
  /// Whether each line of the log is wanted, and not only what they come to.
  bool showsLog() const { return m_loudness >= Loudness::Log; }
  bool isVerbose() const { return m_loudness == Loudness::Verbose; }

  /// Written as it is.
  void data(std::string_view text);
  /// Text that somebody else wrote: as it is too, but for what could do a terminal harm.
  void foreignText(std::string_view text);
  /// The text with the colour codes around it where colour is wanted.
  std::string painted(Paint paint, std::string_view text) const;

  // One message each, without a final line feed; what a terminal cannot show is replaced. They reach the terminal with
  // the next flush().

  /// Not when quiet.
  void message(std::string_view text);
  /// Only when verbose.
  void diagnostic(std::string_view text);
  /// Also when quiet.
  void note(std::string_view text) { append("", text); }
  /// Always, and at once.
  void error(std::string_view text);

  /// Shows the line, or another text in its place; any other output removes it.
  void showProgress(std::string_view text);
  void flush();
  /// Flushes everything; false when standard output could not take all of the data.
  bool finish();

 private:
  void append(std::string_view prefix, std::string_view text);
  void write();
  void hideProgress();

  Loudness m_loudness = Loudness::Normal;
  bool m_isOutputTerminal;
  bool m_colorsOutput;
  bool m_colorsErrors;
  bool m_showsProgress;
  bool m_progressShown = false;
  std::mutex m_mutex;
  std::string m_pending;  ///< for standard error; many short writes are slow
};

}  // namespace glossmill

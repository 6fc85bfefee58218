#include "host/AtomicWrite.h"

#include "host/PreparedFile.h"

namespace glossmill {

Outcome writeAtomically(const FileUrl& file, const BytePieces& next) {
  const Result<std::unique_ptr<PreparedWrite>> prepared = prepareFile(file, next, {});
  return prepared ? prepared.value()->putInPlace() : Outcome(prepared.error());
}

}  // namespace glossmill

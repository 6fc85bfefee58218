#include "safety/ProjectBounds.h"

#include <string>

namespace glossmill {

Outcome checkInside(SaveDisk& disk, const FileUrl& project, const FileUrl& url) {
  const Result<FileUrl> target = disk.resolve(url);
  if (!target) return target.error();
  const Result<FileUrl> bounds = disk.resolve(project);
  if (!bounds) return bounds.error();
  if (target.value().path().starts_with(bounds.value().path() + "/")) return Done{};
  return Error{"It lies outside the project: it is " + target.value().path() + ".", ErrorKind::Outside};
}

}  // namespace glossmill

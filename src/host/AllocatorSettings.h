#pragma once

namespace glossmill {

/// Tells the C library to take memory in large steps, and from one heap for all threads: a scan allocates a lot on one
/// thread and frees next to nothing until the end. Up to 2 GiB of addresses are reserved at once, in large pages where
/// the system has them; memory that was used there stays with the process. Call it first in main(). Does nothing with
/// libraries that have no such settings.
void setAllocatorForScans();

}  // namespace glossmill

#pragma once

namespace quenfor::cli {

// Reading a large file makes one string per line: a million small blocks, whose memory the kernel
// hands out page by page. On a machine that offers transparent huge pages on request, that setup
// took a third of a sort's time; with huge pages for the heap it takes a fraction. The C library
// reads that wish only when a program starts, so a run with a large input file starts itself once
// more with it. Nothing happens where it cannot work or would not pay (small inputs, the user's
// own tuning, no huge pages); a failed restart carries on as before.
void restartWithHugePageHeapForLargeInputs(char** argv);

} // namespace quenfor::cli

#pragma once

namespace tempodial {

/// SQLite's way to the files of a mailbox, which waits for the disk no more often than what is durable depends on it.
/// The write-ahead journal is kept between runs, empty after a clean end: its name is durable before anything stands in
/// it, so no commit waits for the folder. The head of an empty journal is flushed with the first commit behind it, and
/// a journal in which nothing has been written since it was flushed isn't flushed again.
class JournalVfs
{
public:
    /// The name by which SQLite opens a database in this way.
    static const char* Name();
};

}

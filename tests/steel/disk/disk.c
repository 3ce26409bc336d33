// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only

// Preloaded between a program and the disk. It looks only at files below STEEL_ROOT, and does what
// the other variables ask for:
//   STEEL_TRACE=FILE   writes down every change with its contents, and what is said on the standard
//                      output, in the order of the calls
//   STEEL_COUNTS=FILE  at the end, how many calls of each kind there were
//   STEEL_FAULT="KIND N ERROR once|forever"   the N-th call of that kind fails so, and with
//   "forever"
//                      every later one; ERROR is EIO, ENOSPC, EACCES or "short"
//   STEEL_KILL=N       ends the process before its N-th change
//   STEEL_FULL=FILE    as long as FILE exists, nothing grows and nothing is made
//   STEEL_READONLY=1   nothing is opened for writing, made, renamed or removed
// A "-shm" file is left out of the trace: it is memory, and made anew after a power cut.
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <pthread.h>
#include <signal.h>
#include <stdarg.h>
#include <stdbool.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

enum kind
{
    OPEN,
    READ,
    WRITE,
    SYNC,
    TRUNCATE,
    RENAME,
    LINK,
    UNLINK,
    MKDIR,
    KINDS
};
static const char *const names[KINDS] = {"open",   "read", "write",  "sync", "truncate",
                                         "rename", "link", "unlink", "mkdir"};
enum
{
    MOST_FILES = 1024
};

static const char *root, *counts_path, *full_flag;
static int trace = -1;
static char *path_of[MOST_FILES];
static long calls[KINDS], changes, kill_at;
static enum kind fault_kind = KINDS;
static long fault_at;
static int fault_error; // 0 is "short"
static bool fault_stays, read_only;
static pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;

#define REAL(name)                                                                                 \
    static __typeof__(&name) real;                                                                 \
    if (!real)                                                                                     \
    real = (__typeof__(&name))dlsym(RTLD_NEXT, #name)

// Straight to the kernel, so that none of this passes through the functions below.
static void put(int fd, const void *bytes, size_t size)
{
    const char *at = bytes;
    while (size > 0) {
        const long written = syscall(SYS_write, fd, at, size);
        if (written < 0)
            abort();
        at += written;
        size -= (size_t)written;
    }
}

static int raw_open(const char *path, int flags)
{
    return (int)syscall(SYS_openat, AT_FDCWD, path, flags | O_CLOEXEC, 0600);
}

static int error_named(const char *name)
{
    if (strcmp(name, "EIO") == 0)
        return EIO;
    if (strcmp(name, "ENOSPC") == 0)
        return ENOSPC;
    if (strcmp(name, "EACCES") == 0)
        return EACCES;
    return 0;
}

__attribute__((constructor)) static void begin(void)
{
    root = getenv("STEEL_ROOT");
    counts_path = getenv("STEEL_COUNTS");
    full_flag = getenv("STEEL_FULL");
    read_only = getenv("STEEL_READONLY") != NULL;
    const char *text = getenv("STEEL_TRACE");
    if (text)
        trace = raw_open(text, O_WRONLY | O_CREAT | O_APPEND);
    text = getenv("STEEL_KILL");
    if (text)
        kill_at = atol(text);
    text = getenv("STEEL_FAULT");
    char kind[16], error[16], mode[16];
    if (text && sscanf(text, "%15s %ld %15s %15s", kind, &fault_at, error, mode) == 4) {
        for (int each = 0; each < KINDS; ++each) {
            if (strcmp(names[each], kind) == 0)
                fault_kind = (enum kind)each;
        }
        fault_error = error_named(error);
        fault_stays = strcmp(mode, "forever") == 0;
    }
}

__attribute__((destructor)) static void end(void)
{
    if (!counts_path)
        return;
    const int fd = raw_open(counts_path, O_WRONLY | O_CREAT | O_TRUNC);
    char line[64];
    for (int each = 0; each < KINDS; ++each)
        put(fd, line, (size_t)snprintf(line, sizeof line, "%s %ld\n", names[each], calls[each]));
    put(fd, line, (size_t)snprintf(line, sizeof line, "change %ld\n", changes));
}

// The root ends with a slash; the folder itself counts too, by its name without one.
static bool watched(const char *path)
{
    if (!root || !path)
        return false;
    const size_t length = strlen(root);
    return strncmp(path, root, length) == 0 ||
           (strlen(path) + 1 == length && strncmp(path, root, length - 1) == 0);
}

static bool watched_fd(int fd)
{
    return fd >= 0 && fd < MOST_FILES && path_of[fd];
}

static bool ends_with(const char *text, const char *ending)
{
    const size_t length = strlen(text), wanted = strlen(ending);
    return length >= wanted && strcmp(text + length - wanted, ending) == 0;
}

static void record(const char *what, unsigned long inode, long offset, const void *bytes,
                   size_t size, const char *path, const char *other)
{
    if (trace < 0 || (path && ends_with(path, "-shm")))
        return;
    char head[2 * PATH_MAX + 128];
    const int length = snprintf(head, sizeof head, "%s\t%lu\t%ld\t%zu\t%s\t%s\n", what, inode,
                                offset, size, path ? path : "", other ? other : "");
    pthread_mutex_lock(&mutex);
    put(trace, head, (size_t)length);
    put(trace, bytes, size);
    pthread_mutex_unlock(&mutex);
}

static struct stat stat_of(int fd)
{
    struct stat found = {0};
    fstat(fd, &found);
    return found;
}

// Counts a call that is about to be made, and ends the process where that was asked for. True where
// the call is to fail, `errno` being set, or to be short, `errno` being 0.
static bool fails(enum kind kind, bool is_change)
{
    const long number = __atomic_add_fetch(&calls[kind], 1, __ATOMIC_SEQ_CST);
    if (is_change && __atomic_add_fetch(&changes, 1, __ATOMIC_SEQ_CST) == kill_at)
        kill(getpid(), SIGKILL);
    if (kind != fault_kind || (fault_stays ? number < fault_at : number != fault_at))
        return false;
    errno = fault_error;
    return true;
}

static bool full(void)
{
    if (!full_flag || access(full_flag, F_OK) != 0)
        return false;
    errno = ENOSPC;
    return true;
}

static bool refused(void)
{
    if (read_only)
        errno = EROFS;
    return read_only;
}

static int opened(int (*real)(const char *, int, ...), const char *path, int flags, mode_t mode)
{
    if (!watched(path))
        return real(path, flags, mode);
    const bool unnamed = (flags & O_TMPFILE) == O_TMPFILE;
    const bool is_new = unnamed || ((flags & O_CREAT) && access(path, F_OK) != 0);
    if (fails(OPEN, is_new || (flags & O_TRUNC))) {
        errno = errno ? errno : EIO;
        return -1;
    }
    if ((is_new || (flags & O_ACCMODE) != O_RDONLY) && refused())
        return -1;
    if (is_new && full())
        return -1;
    const int fd = real(path, flags, mode);
    if (fd < 0 || fd >= MOST_FILES)
        return fd;
    free(path_of[fd]);
    path_of[fd] = strdup(path);
    const struct stat status = stat_of(fd);
    if (unnamed)
        record("unnamed", status.st_ino, 0, NULL, 0, path, NULL);
    else if (is_new)
        record("create", status.st_ino, 0, NULL, 0, path, NULL);
    else if (flags & O_TRUNC)
        record("truncate", status.st_ino, 0, NULL, 0, path, NULL);
    return fd;
}

static mode_t mode_from(int flags, va_list arguments)
{
    return (flags & O_CREAT) || (flags & O_TMPFILE) == O_TMPFILE ? va_arg(arguments, mode_t) : 0;
}

int open(const char *path, int flags, ...)
{
    REAL(open);
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = mode_from(flags, arguments);
    va_end(arguments);
    return opened(real, path, flags, mode);
}

int open64(const char *path, int flags, ...)
{
    REAL(open64);
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = mode_from(flags, arguments);
    va_end(arguments);
    return opened(real, path, flags, mode);
}

int close(int fd)
{
    REAL(close);
    if (watched_fd(fd)) {
        free(path_of[fd]);
        path_of[fd] = NULL;
    }
    return real(fd);
}

static size_t shortened(size_t size)
{
    return size > 1 ? size / 2 : size;
}

ssize_t read(int fd, void *buffer, size_t size)
{
    REAL(read);
    if (watched_fd(fd) && fails(READ, false)) {
        if (errno)
            return -1;
        size = shortened(size);
    }
    return real(fd, buffer, size);
}

ssize_t pread64(int fd, void *buffer, size_t size, off64_t offset)
{
    REAL(pread64);
    if (watched_fd(fd) && fails(READ, false)) {
        if (errno)
            return -1;
        size = shortened(size);
    }
    return real(fd, buffer, size, offset);
}

// How much of a write is to be tried, -1 for none.
static ssize_t writable(int fd, size_t size, off_t offset)
{
    if (fails(WRITE, true)) {
        if (errno)
            return -1;
        return (ssize_t)shortened(size);
    }
    if (offset + (off_t)size > stat_of(fd).st_size && full())
        return -1;
    return (ssize_t)size;
}

static void record_write(int fd, const void *bytes, ssize_t size, off_t offset)
{
    if (size > 0)
        record("write", stat_of(fd).st_ino, offset, bytes, (size_t)size, path_of[fd], NULL);
}

ssize_t write(int fd, const void *bytes, size_t size)
{
    REAL(write);
    if (fd == STDOUT_FILENO)
        record("say", 0, 0, bytes, size, NULL, NULL);
    if (!watched_fd(fd))
        return real(fd, bytes, size);
    const off_t offset =
        fcntl(fd, F_GETFL) & O_APPEND ? stat_of(fd).st_size : lseek(fd, 0, SEEK_CUR);
    const ssize_t allowed = writable(fd, size, offset);
    const ssize_t written = allowed < 0 ? -1 : real(fd, bytes, (size_t)allowed);
    record_write(fd, bytes, written, offset);
    return written;
}

ssize_t pwrite64(int fd, const void *bytes, size_t size, off64_t offset)
{
    REAL(pwrite64);
    if (!watched_fd(fd))
        return real(fd, bytes, size, offset);
    const ssize_t allowed = writable(fd, size, offset);
    const ssize_t written = allowed < 0 ? -1 : real(fd, bytes, (size_t)allowed, offset);
    record_write(fd, bytes, written, offset);
    return written;
}

// What a copy inside the kernel has written is read back for the trace.
static void record_copy(int fd, ssize_t size, off_t offset)
{
    if (trace < 0 || size <= 0)
        return;
    char name[32];
    snprintf(name, sizeof name, "/proc/self/fd/%d", fd);
    const int copy = raw_open(name, O_RDONLY);
    char *bytes = malloc((size_t)size);
    if (syscall(SYS_pread64, copy, bytes, size, offset) != size)
        abort();
    record_write(fd, bytes, size, offset);
    free(bytes);
    syscall(SYS_close, copy);
}

ssize_t sendfile(int out, int in, off_t *from, size_t size)
{
    REAL(sendfile);
    if (watched_fd(in) && fails(READ, false) && errno)
        return -1;
    if (!watched_fd(out))
        return real(out, in, from, size);
    const struct stat source = stat_of(in);
    if (size > (size_t)source.st_size)
        size = (size_t)source.st_size + 1;
    const off_t offset = lseek(out, 0, SEEK_CUR);
    const ssize_t allowed = writable(out, size, offset);
    const ssize_t written = allowed < 0 ? -1 : real(out, in, from, (size_t)allowed);
    record_copy(out, written, offset);
    return written;
}

ssize_t copy_file_range(int in, off64_t *from, int out, off64_t *to, size_t size, unsigned flags)
{
    REAL(copy_file_range);
    // Its callers know that not every file system can do it, and copy by hand then.
    if (watched_fd(out)) {
        errno = EOPNOTSUPP;
        return -1;
    }
    return real(in, from, out, to, size, flags);
}

static int synced(int (*real)(int), int fd)
{
    if (!watched_fd(fd))
        return real(fd);
    if (fails(SYNC, true)) {
        errno = errno ? errno : EIO;
        return -1;
    }
    const int result = real(fd);
    const struct stat status = stat_of(fd);
    if (result == 0)
        record(S_ISDIR(status.st_mode) ? "sync folder" : "sync", status.st_ino, 0, NULL, 0,
               path_of[fd], NULL);
    return result;
}

int fsync(int fd)
{
    REAL(fsync);
    return synced(real, fd);
}

int fdatasync(int fd)
{
    REAL(fdatasync);
    return synced(real, fd);
}

static int truncated(int (*real)(int, off64_t), int fd, off64_t size)
{
    if (!watched_fd(fd))
        return real(fd, size);
    if (fails(TRUNCATE, true)) {
        errno = errno ? errno : EIO;
        return -1;
    }
    if (size > stat_of(fd).st_size && full())
        return -1;
    const int result = real(fd, size);
    if (result == 0)
        record("truncate", stat_of(fd).st_ino, size, NULL, 0, path_of[fd], NULL);
    return result;
}

int ftruncate(int fd, off_t size)
{
    REAL(ftruncate);
    return truncated(real, fd, size);
}

int ftruncate64(int fd, off64_t size)
{
    REAL(ftruncate64);
    return truncated(real, fd, size);
}

static bool name_fails(enum kind kind)
{
    if (!fails(kind, true))
        return refused();
    errno = errno ? errno : EIO;
    return true;
}

int rename(const char *from, const char *to)
{
    REAL(rename);
    if (!watched(to))
        return real(from, to);
    if (name_fails(RENAME))
        return -1;
    const int result = real(from, to);
    if (result == 0)
        record("rename", 0, 0, NULL, 0, from, to);
    return result;
}

int renameat2(int from_folder, const char *from, int to_folder, const char *to, unsigned flags)
{
    REAL(renameat2);
    if (!watched(to))
        return real(from_folder, from, to_folder, to, flags);
    if (name_fails(RENAME))
        return -1;
    const int result = real(from_folder, from, to_folder, to, flags);
    if (result == 0)
        record("rename", 0, 0, NULL, 0, from, to);
    return result;
}

static void record_link(const char *to)
{
    struct stat status = {0};
    stat(to, &status);
    record("link", status.st_ino, 0, NULL, 0, to, NULL);
}

int link(const char *from, const char *to)
{
    REAL(link);
    if (!watched(to))
        return real(from, to);
    if (name_fails(LINK) || full())
        return -1;
    const int result = real(from, to);
    if (result == 0)
        record_link(to);
    return result;
}

int linkat(int from_folder, const char *from, int to_folder, const char *to, int flags)
{
    REAL(linkat);
    if (!watched(to))
        return real(from_folder, from, to_folder, to, flags);
    if (name_fails(LINK) || full())
        return -1;
    const int result = real(from_folder, from, to_folder, to, flags);
    if (result == 0)
        record_link(to);
    return result;
}

int unlink(const char *path)
{
    REAL(unlink);
    if (!watched(path))
        return real(path);
    if (name_fails(UNLINK))
        return -1;
    const int result = real(path);
    if (result == 0)
        record("unlink", 0, 0, NULL, 0, path, NULL);
    return result;
}

int rmdir(const char *path)
{
    REAL(rmdir);
    if (!watched(path))
        return real(path);
    if (name_fails(UNLINK))
        return -1;
    const int result = real(path);
    if (result == 0)
        record("rmdir", 0, 0, NULL, 0, path, NULL);
    return result;
}

int mkdir(const char *path, mode_t mode)
{
    REAL(mkdir);
    if (!watched(path))
        return real(path, mode);
    if (name_fails(MKDIR) || full())
        return -1;
    const int result = real(path, mode);
    if (result == 0)
        record("mkdir", 0, 0, NULL, 0, path, NULL);
    return result;
}

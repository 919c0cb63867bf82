/* A false clock for 32-bit programs: their C library asks for the time by calls that the usual library of that kind doesn't
   know. Loaded before that C library (LD_PRELOAD), it takes the moment "@YYYY-MM-DD HH:MM:SS" from the file that
   FAKETIME_TIMESTAMP_FILE names; the clock showed that moment (UTC) when the file was written, and has run on since.

   Built without any header, since a 64-bit machine need not have those of 32 bits: scripts/test-32-bit.sh tells how. */

typedef long long int64;

struct moment {
  int64 seconds;
  int64 parts; /* micro- or nanoseconds */
};

extern char *getenv(const char *name);
extern int open(const char *path, int how, ...);
extern int read(int file, void *to, unsigned size);
extern int close(int file);
extern long syscall(long number, ...);
extern int sscanf(const char *text, const char *form, ...);

enum { clock_gettime64_call = 403, statx_call = 383, real_time = 0, at_current_folder = -100, basic_stats = 0x7FF };

/* Days from 1 January 1970. */
static int days_of(int year, int month, int day) {
  int era, in_era;
  if (month <= 2) --year;
  era = year / 400;
  in_era = year - era * 400;
  return era * 146097 + in_era * 365 + in_era / 4 - in_era / 100 + (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1 -
         719468;
}

/* Seconds from the real to the false time; 0 where no moment is given. */
static int64 shift(void) {
  const char *const path = getenv("FAKETIME_TIMESTAMP_FILE");
  char text[40];
  unsigned char about[256]; /* the kernel's struct statx: the seconds of the last change lie at byte 112 */
  int file, size, year, month, day, hour, minute, second;
  if (path == 0 || syscall(statx_call, at_current_folder, path, 0, basic_stats, about) != 0) return 0;
  if ((file = open(path, 0)) < 0) return 0;
  size = read(file, text, sizeof text - 1);
  close(file);
  if (size <= 0) return 0;
  text[size] = 0;
  if (sscanf(text, "@%d-%d-%d %d:%d:%d", &year, &month, &day, &hour, &minute, &second) != 6) return 0;
  return days_of(year, month, day) * 86400LL + hour * 3600 + minute * 60 + second - *(const int64 *)(about + 112);
}

int __clock_gettime64(int clock, struct moment *to) {
  const int result = (int)syscall(clock_gettime64_call, clock, to);
  if (result == 0 && clock == real_time) to->seconds += shift();
  return result;
}

int __gettimeofday64(struct moment *to, void *zone) {
  const int result = (int)syscall(clock_gettime64_call, real_time, to);
  (void)zone;
  if (result != 0) return result;
  to->seconds += shift();
  to->parts = (int)to->parts / 1000;
  return 0;
}

int64 __time64(int64 *to) {
  struct moment now;
  __clock_gettime64(real_time, &now);
  if (to != 0) *to = now.seconds;
  return now.seconds;
}

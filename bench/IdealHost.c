/* The ideal host: answers each echo of the keyer at once, and does nothing else. Prints the median
   time, in milliseconds, from an echo on the line until the answer is there, so that what a host of
   any kind can reach on this machine, in this moment, stands beside what the program does. */

#define _GNU_SOURCE
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <termios.h>
#include <time.h>
#include <unistd.h>

enum { rounds = 2000 };

static double now(void) {
    struct timespec time;
    clock_gettime(CLOCK_MONOTONIC, &time);
    return time.tv_sec * 1e3 + time.tv_nsec / 1e6;
}

static int compare(const void* one, const void* other) {
    const double difference = *(const double*)one - *(const double*)other;
    return (difference > 0) - (difference < 0);
}

int main(void) {
    const int keyer = posix_openpt(O_RDWR | O_NOCTTY);
    if (keyer < 0 || grantpt(keyer) != 0 || unlockpt(keyer) != 0) {
        return EXIT_FAILURE;
    }
    const int host = open(ptsname(keyer), O_RDWR | O_NOCTTY);
    struct termios line;
    tcgetattr(host, &line);
    cfmakeraw(&line);
    tcsetattr(host, TCSANOW, &line);
    char byte = 'E';
    if (fork() == 0) {
        for (int i = 0; i < rounds && read(host, &byte, 1) == 1 && write(host, &byte, 1) == 1;
             ++i) {
        }
        _exit(EXIT_SUCCESS);
    }
    static double times[rounds];
    const struct timespec pause = {0, 2000000};
    for (int i = 0; i < rounds; ++i) {
        nanosleep(&pause, NULL);
        times[i] = now();
        if (write(keyer, &byte, 1) != 1 || read(keyer, &byte, 1) != 1) {
            return EXIT_FAILURE;
        }
        times[i] = now() - times[i];
    }
    wait(NULL);
    qsort(times, rounds, sizeof times[0], compare);
    printf("ideal_ms %.3f\n", times[rounds / 2]);
    return EXIT_SUCCESS;
}

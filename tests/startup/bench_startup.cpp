// Start-up benchmark: launches the application and a bare Qt window in turn,
// each timed from just before its launch to its first window on screen, and
// reports the medians of both, their resident memory and the ratios.
//   bench_startup APP BARE [RUNS]      (needs a display: run it under Xvfb)
#include <sys/wait.h>
#include <unistd.h>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

namespace {

struct Sample {
  double ms = 0;
  long kb = 0;
};

bool launch(const char* program, Sample& out) {
  timespec t0{};
  clock_gettime(CLOCK_MONOTONIC, &t0);
  const std::string stamp = std::to_string(t0.tv_sec * 1000000000LL + t0.tv_nsec);
  int pipeFd[2];
  if (pipe(pipeFd) != 0) return false;
  const pid_t child = fork();
  if (child == 0) {
    dup2(pipeFd[1], STDOUT_FILENO);
    close(pipeFd[0]);
    setenv("TESSARON_STARTUP_T0", stamp.c_str(), 1);
    execl(program, program, static_cast<char*>(nullptr));
    _exit(127);
  }
  close(pipeFd[1]);
  char line[128] = {};
  const ssize_t n = read(pipeFd[0], line, sizeof line - 1);
  close(pipeFd[0]);
  int status = 0;
  waitpid(child, &status, 0);
  return n > 0 && std::sscanf(line, "%lf %ld", &out.ms, &out.kb) == 2;
}

template <class T>
T median(std::vector<T> v) {
  std::sort(v.begin(), v.end());
  return v[v.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: %s APP BARE [RUNS]\n", argv[0]);
    return 2;
  }
  const int runs = argc > 3 ? std::max(1, std::atoi(argv[3])) : 21;
  std::vector<double> appMs, bareMs;
  std::vector<long> appKb, bareKb;
  for (int i = 0; i < runs; ++i) {
    Sample a, b;
    if (!launch(argv[1], a) || !launch(argv[2], b)) {
      std::fprintf(stderr, "a launch gave no reading (is DISPLAY set?)\n");
      return 1;
    }
    appMs.push_back(a.ms), appKb.push_back(a.kb);
    bareMs.push_back(b.ms), bareKb.push_back(b.kb);
  }
  const double am = median(appMs), bm = median(bareMs);
  const long ak = median(appKb), bk = median(bareKb);
  std::printf("runs %d\n", runs);
  std::printf("menu mapped   %8.1f ms   resident %7ld kB\n", am, ak);
  std::printf("bare window   %8.1f ms   resident %7ld kB\n", bm, bk);
  std::printf("ratio         %8.2f      resident %7.2f\n", am / bm,
              static_cast<double>(ak) / static_cast<double>(bk));
  return 0;
}

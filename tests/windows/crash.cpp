// A program that crashes, to see that whoever runs tests under Wine notices.

int main() {
  volatile int* const nowhere = nullptr;
  return *nowhere;
}

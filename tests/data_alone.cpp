// Linked with every object of the data rooms and with nothing else.

int main() {
  return 0;
}

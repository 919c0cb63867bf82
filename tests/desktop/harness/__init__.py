"""What the desktop tests stand on: a screen, a Wine prefix, the program in it, and a user's hands and eyes."""

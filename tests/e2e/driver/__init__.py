"""Drives the program from outside its process: real keys and mouse events, a real clipboard, real files."""

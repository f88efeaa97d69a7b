"""The desktop's session, whose end every program may put off."""

import select
import subprocess

from .process import start_process
from .waiting import LIMIT


class Session:
    """Programs belong to it that are started with its environment."""

    def __init__(self, program, environment):
        self._manager = start_process(
            [program], env=environment, stdin=subprocess.PIPE, stdout=subprocess.PIPE, bufsize=0
        )
        self.environment = {"SESSION_MANAGER": self._line()}

    def end(self, may_ask=True):
        """The user logs out; unless programs may ask, without another word."""
        self._manager.stdin.write(b"end\n" if may_ask else b"hurry\n")

    def expect(self, line):
        """Waits for what the session manager says about the program."""
        said = self._line()
        assert said == line, f"the session manager says {said!r} in place of {line!r}"

    def stop(self):
        self._manager.stdin.close()
        self._manager.wait()
        self._manager.stdout.close()

    def _line(self):
        readable, _, _ = select.select([self._manager.stdout], [], [], LIMIT)
        assert readable, "the session manager says nothing"
        return self._manager.stdout.readline().decode().strip()

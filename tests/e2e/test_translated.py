"""The translated program: a newcomer's first steps and the whole program by keyboard, and no word of English left."""

import re

import pytest
from conftest import GERMAN
from test_keyboard import every_control_has_a_name, test_everything_by_keyboard  # once more in German
from test_newcomer import test_a_newcomer_makes_a_library

# What a control's name may hold beside words: values, not texts.
VALUE = re.compile(r"[\d\W]*")
ABOUT = "Mivo Version "
CONTENT_ROLES = ("text", "combo box", "list item", "cell", "table cell", "tree table", "scroll bar")
TOOLKIT_ENGLISH = {"Look in:", "File name:", "Files of type:", "Cancel", "Save", "Open", "Font style", "Size", "Effects"}


@pytest.fixture
def language():
    return GERMAN


@pytest.fixture
def watchers():
    return [has_no_english, every_control_has_a_name]


def has_no_english(mivo, dialog):
    own = mivo.texts.everything()
    named = [each.name for each in dialog.control.walk() if each.role not in CONTENT_ROLES]
    own.add("Mivo")
    filled_in = [re.escape(text).replace("%s", ".*").replace("%d", r"\d+") for text in own if "%" in text]
    own.update(name for name in named for text in filled_in if re.fullmatch(text, name, re.DOTALL))
    if dialog.control.name in own:
        strange = [name for name in named if name not in own and not VALUE.fullmatch(name.removeprefix(ABOUT))]
    else:
        strange = [name for name in named if name in TOOLKIT_ENGLISH]
    assert strange == [], f"not translated in {dialog.control.name!r}"


def test_no_english_in_the_window(start, sample, texts):
    """Menus, tool bar, name list and status bar."""
    mivo = start(sample("standard.ZLB"))
    own = texts.everything()
    seen = 0
    for control in mivo.frame.walk(skip=("list", "text")):
        words, *keys = control.name.split("\t")
        if control.role in ("frame", "list", "list item", "text") or VALUE.fullmatch(words):
            continue
        assert words in own or f"{words}..." in own  # buttons leave the dots out
        assert not {"Ctrl", "Del", "Page"} & set(re.findall(r"\w+", "".join(keys))), f"keys of {words!r}"
        seen += 1
    assert seen > 50

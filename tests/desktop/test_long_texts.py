"""Texts beyond 32 and 64 K in the editor: every byte comes from the file and goes back into it."""
from harness.desktop import Desktop_Test, record
from harness.hands import Editor, wait_for_file


def long_text(size, word):
    """A text of so many bytes in lines, no two of which are equal; its last character is a letter."""
    lines = (f"{word} {number:06} and its line\r\n" for number in range(size))
    text = ""
    while len(text) < size:
        text += next(lines)
    return text[:size - 4] + "last"


class Long_Texts(Desktop_Test):
    def opened(self, **world):
        desktop = self.desktop(settings={"Tooltips": 0, "Show Alerts": 0}, **world)
        desktop.started()
        return desktop, Editor(desktop).open(10)

    def paste(self, desktop, text):
        (desktop.folder / "text.txt").write_bytes(text.encode("ascii"))
        desktop.copy("C:\\Meridex\\text.txt")
        desktop.screen.key("ctrl+v")

    def test_texts_over_32_and_over_64_k_are_pasted_and_saved(self):
        desktop, editor = self.opened()
        first, second = long_text(40000, "First"), long_text(35000, "Second")
        self.paste(desktop, first)
        editor.has(40000)
        self.paste(desktop, second)
        editor.has(75000)
        desktop.screen.type("!")
        editor.has(75001)
        desktop.screen.key("Return")
        editor.gone()
        wait_for_file(desktop, record(f"10/3/2004={first}{second}!"))

    def changed(self, size):
        """An event of that size is opened, a letter put at its end, and saved."""
        text = long_text(size, "Old")
        desktop, editor = self.opened(events=["9/3/2004=Tea", f"10/3/2004={text}", "11/3/2004=Choir"])
        editor.has(size)
        desktop.screen.key("ctrl+End", "exclam")
        editor.has(size + 1)
        desktop.screen.key("Return")
        editor.gone()
        wait_for_file(desktop, record("9/3/2004=Tea") + record(f"10/3/2004={text}!") + record("11/3/2004=Choir"))

    def test_an_event_over_32_k_is_opened_and_saved(self):
        self.changed(40000)

    def test_an_event_over_64_k_is_opened_and_saved(self):
        self.changed(70000)

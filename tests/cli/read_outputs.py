"""Prints as JSON what other programs read in the outputs that lie in a folder."""

import csv
import email
import email.policy
import html.parser
import io
import json
import os
import sys

csv.field_size_limit(10_000_000)


class Page(html.parser.HTMLParser):
    """The text that a page shows, its tags with the names of their attributes, and where its links lead."""

    def __init__(self, text):
        super().__init__(convert_charrefs=True)
        self.tags = []
        self.links = []
        self.text = []
        self.hidden = 0
        self.feed(text)
        self.close()

    def handle_starttag(self, tag, attrs):
        if tag in ("style", "title"):
            self.hidden += 1
        if tag == "a":
            self.links.append(dict(attrs).get("href"))
        elif tag != "bdi":
            self.tags.append(" ".join([tag] + sorted(name for name, _ in attrs)))

    def handle_endtag(self, tag):
        if tag in ("style", "title"):
            self.hidden -= 1

    def handle_data(self, data):
        if not self.hidden:
            self.text.append(data)

    def handle_comment(self, data):
        self.tags.append("comment")

    def Read(self):
        """All of it, blanks drawn together as a browser does."""
        return {"tags": self.tags, "links": self.links, "text": " ".join("".join(self.text).split())}


def Rows(text):
    """The rows of a table, each by the names in the head."""
    return list(csv.DictReader(io.StringIO(text, newline=""), strict=True))


def Mail(raw):
    """A message: its headers, its body, the tables that are attached, and what is wrong with it."""
    message = email.message_from_bytes(raw, policy=email.policy.default)
    parts = [part for part in message.walk() if not part.is_multipart()]
    bare = raw.replace(b"\r\n", b"")
    return {
        "headers": sorted(message.keys()),
        "subject": message["Subject"],
        "types": [part.get_content_type() for part in parts],
        "body": message.get_body(("html", "plain")).get_content(),
        "plain": message.get_body(("plain",)).get_content(),
        "tables": [Rows(part.get_content()) for part in parts if part.get_content_type() == "text/csv"],
        "defects": [type(defect).__name__ for part in message.walk() for defect in part.defects],
        "bare line ends": bare.count(b"\r") + bare.count(b"\n"),
        "longest line": max(map(len, raw.split(b"\r\n"))),
    }


def Main(folder):
    read = {}
    for name in sorted(os.listdir(folder)):
        with open(os.path.join(folder, name), "rb") as stream:
            raw = stream.read()
        if name.endswith(".json"):
            read[name] = json.loads(raw.decode("utf-8"))
        elif name.endswith(".csv"):
            read[name] = Rows(raw.decode("utf-8"))
        elif name.endswith(".html"):
            read[name] = Page(raw.decode("utf-8")).Read()
        elif name.endswith(".eml"):
            mail = read[name] = Mail(raw)
            if "text/html" in mail["types"]:
                mail["page"] = Page(mail["body"]).Read()
    json.dump(read, sys.stdout)


if __name__ == "__main__":
    Main(sys.argv[1])

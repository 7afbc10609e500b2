"""Prints what a mail program reads in a message, a line for each thing; bytes of parts are in hexadecimal."""

import email
import email.policy
import sys


def Defects(message):
    """The names of all that is wrong with a message, its parts and their headers."""
    defects = []
    for part in message.walk():
        defects += part.defects
        for value in part.values():
            defects += value.defects
    return [type(defect).__name__ for defect in defects]


def Main(path):
    with open(path, "rb") as stream:
        raw = stream.read()
    message = email.message_from_bytes(raw, policy=email.policy.default)
    print("headers:", ", ".join(message.keys()))
    print("subject:", message["Subject"])
    print("to:", message["To"])
    print("unsent:", message["X-Unsent"])
    for part in message.walk():
        if part.get_content_type() == "multipart/alternative":
            print("alternatives:", ", ".join(each.get_content_type() for each in part.iter_parts()))
        if not part.is_multipart():
            print("part:", part.get_content_type(), part.get_content_charset(), part.get_content_disposition(),
                  part.get_filename())
            print(part.get_payload(decode=True).hex())
    bare = raw.replace(b"\r\n", b"")
    print("bare line ends:", bare.count(b"\r") + bare.count(b"\n"))
    print("longest line:", "short" if max(map(len, raw.split(b"\r\n"))) <= 78 else "long")
    print("defects:", Defects(message))


if __name__ == "__main__":
    sys.stdout.reconfigure(encoding="utf-8", newline="\n")
    Main(sys.argv[1])

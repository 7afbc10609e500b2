"""Prints what goes with an e-mail."""

import email
import email.policy
import sys

with open(sys.argv[1], "rb") as stream:
    message = email.message_from_binary_file(stream, policy=email.policy.default)
for attachment in message.iter_attachments():
    print(attachment.get_filename())
    print(attachment.get_payload(decode=True).decode("utf-8"))

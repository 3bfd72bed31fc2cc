# The SMTP server of Brisko's mail tests: listens on 127.0.0.1, prints its
# port, adds a JSON line about each message it takes to the file it is given,
# and runs until its standard input closes.
# Options: --starttls CERT KEY, --auth USER:PASSWORD.
import base64, email, email.policy, json, random, socket, ssl, sys
from aiosmtpd.controller import Controller
from aiosmtpd.smtp import AuthResult


def free_port():  # one that fits Brisko's 16-bit signed port setting
    while True:
        port = random.randint(20000, 32000)
        with socket.socket() as probe:
            if probe.connect_ex(("127.0.0.1", port)) != 0:
                return port


class Sink:
    def __init__(self, path):
        self.path = path

    async def handle_RCPT(self, server, session, envelope, address, options):
        if address.startswith("nobody@"):
            return "550 5.1.1 No customer of that name here"
        envelope.rcpt_tos.append(address)
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        mail = email.message_from_bytes(envelope.original_content, policy=email.policy.default)
        with open(self.path, "a") as out:
            json.dump({
                "mailFrom": envelope.mail_from, "recipients": envelope.rcpt_tos,
                "from": str(mail["From"]), "to": str(mail["To"]),
                "subject": str(mail["Subject"]), "date": str(mail["Date"] or ""),
                "messageId": str(mail["Message-ID"] or ""),
                "body": mail.get_body(("plain",)).get_content().replace("\r\n", "\n"),
                "attachments": [{"fileName": part.get_filename(),
                                 "mimeType": part.get_content_type(),
                                 "data": base64.b64encode(part.get_payload(decode=True)).decode()}
                                for part in mail.iter_attachments()],
                "defects": sum(len(part.defects) for part in mail.walk()),
                "overTls": session.ssl is not None, "authenticated": bool(session.authenticated),
            }, out)
            out.write("\n")
        return "250 Message accepted"


path, options, args = sys.argv[1], {}, sys.argv[2:]
if "--starttls" in args:
    at = args.index("--starttls")
    context = ssl.create_default_context(ssl.Purpose.CLIENT_AUTH)
    context.load_cert_chain(args[at + 1], args[at + 2])
    options.update(tls_context=context, require_starttls=True)
if "--auth" in args:
    login = args[args.index("--auth") + 1].encode()
    options.update(auth_required=True, auth_require_tls=False, authenticator=lambda server,
                   session, envelope, mechanism, data: AuthResult(
                       success=data.login + b":" + data.password == login))
port = free_port()
controller = Controller(Sink(path), hostname="127.0.0.1", port=port, **options)
controller.start()
print(port, flush=True)
sys.stdin.read()
controller.stop()

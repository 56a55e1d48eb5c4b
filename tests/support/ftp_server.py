#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""An FTP server on loopback, with the weaknesses that its arguments name, until its input ends. Prints its port,
and then a line for each "connection", "login" and command."""
import argparse
import logging
import os
import socket
import subprocess
import sys
import tempfile
import threading
import time

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import DTPHandler, FTPHandler
from pyftpdlib.servers import FTPServer

arguments = argparse.ArgumentParser()
arguments.add_argument("root")
arguments.add_argument("--vsftpd", action="store_true", help="that one, anonymous and without a log of commands")
arguments.add_argument("--certificate", help="with its key; vsftpd alone")
arguments.add_argument("--silent", action="store_true", help="says nothing at all")
arguments.add_argument("--user", default="garten")
arguments.add_argument("--password", default="beet")
arguments.add_argument("--encoding", default="utf8")
arguments.add_argument("--pause", type=float, default=0, help="seconds between pieces of a file")
arguments.add_argument("--quota", type=int, help="bytes of a file that are taken; 552 behind them")
arguments.add_argument("--cut", type=int, help="bytes of a file behind which both connections end")
arguments.add_argument("--gone", action="store_true", help="nobody is answered any more behind the cut")
arguments.add_argument("--refuse", default="", help="commands that are answered 500")
arguments.add_argument("--mute", default="", help="commands that are never answered")
arguments.add_argument("--empty-promise", action="store_true", help="agrees to TLS, and says nothing any more")
arguments.add_argument("--no-calls", type=int, help="calls of the active mode fail with this code; 0: silently")
options = arguments.parse_args()
logging.basicConfig(level=logging.CRITICAL)
children = []
configuration = None


def say(*words):
    print(*words, flush=True)


def end_with_input():
    sys.stdin.read()
    for child in children:
        child.kill()
    if configuration:
        configuration.close()
    os._exit(0)


class Transfer(DTPHandler):
    def handle_read_event(self):
        super().handle_read()
        time.sleep(options.pause)
        taken = self.get_transmitted_bytes()
        if self._closed:
            return
        if options.quota is not None and taken > options.quota:
            self._resp = ("552 Kein Platz mehr.", logging.info)
            self.close()
        elif options.cut is not None and taken > options.cut:
            if options.gone:
                server.del_channel()
            self.cmd_channel.close()


class Handler(FTPHandler):
    dtp_handler = Transfer
    auth_failed_timeout = 0.1

    def on_connect(self):
        say("connection")

    def on_login(self, username):
        say("login", username)

    def pre_process_command(self, line, cmd, arg):
        say(line if cmd != "PASS" else cmd)
        calls = options.no_calls is not None and self.data_channel is None and self._dtp_acceptor is None
        if cmd in options.mute.split(","):
            return
        if cmd in options.refuse.split(","):
            self.respond("500 Nicht hier.")
        elif options.empty_promise and cmd == "AUTH":
            self.respond("234 Bitte.")
            self.del_channel()
        elif calls and cmd in ("EPRT", "PORT"):
            self.respond("200 Wird gerufen.")
        elif calls and cmd == "STOR":
            if options.no_calls:
                self.respond(f"{options.no_calls} Kein Durchkommen.")
        else:
            super().pre_process_command(line, cmd, arg)

    def decode(self, line):
        return line.decode(options.encoding, "replace")

    def ftp_FEAT(self, line):
        if options.encoding == "utf8":
            return super().ftp_FEAT(line)
        self.respond("211 Nichts.")


def listening_socket():
    listener = socket.socket()
    listener.bind(("127.0.0.1", 0))
    listener.listen()
    say(listener.getsockname()[1])
    return listener


def serve_vsftpd():
    global configuration
    settings = {"anonymous_enable": "YES", "no_anon_password": "YES", "anon_root": options.root,
                "anon_upload_enable": "YES", "anon_mkdir_write_enable": "YES",
                "anon_other_write_enable": "YES", "write_enable": "YES", "seccomp_sandbox": "NO",
                "run_as_launching_user": "YES", "listen": "NO", "utf8_filesystem": "YES",
                "connect_from_port_20": "NO", "anon_umask": "022"}
    if options.certificate:
        settings |= {"ssl_enable": "YES", "allow_anon_ssl": "YES", "ssl_tlsv1": "YES",
                     "force_anon_data_ssl": "YES", "force_anon_logins_ssl": "YES",
                     "rsa_cert_file": options.certificate, "rsa_private_key_file": options.certificate}
    configuration = tempfile.NamedTemporaryFile("w")
    configuration.write("".join(f"{name}={value}\n" for name, value in settings.items()))
    configuration.flush()
    listener = listening_socket()
    while True:
        connection, _ = listener.accept()
        say("connection")
        with connection:
            children.append(subprocess.Popen(["/usr/sbin/vsftpd", configuration.name], stdin=connection))


threading.Thread(target=end_with_input, daemon=True).start()
if options.silent:
    unheard = listening_socket()
    threading.Event().wait()
elif options.vsftpd:
    serve_vsftpd()
else:
    authorizer = DummyAuthorizer()
    authorizer.add_user(options.user, options.password, options.root, perm="elradfmwMT")
    Handler.authorizer = authorizer
    server = FTPServer(("127.0.0.1", 0), Handler)
    say(server.socket.getsockname()[1])
    server.serve_forever()
    threading.Event().wait()

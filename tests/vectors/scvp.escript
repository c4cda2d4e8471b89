#!/usr/bin/env escript
%% Makes erlang.vec: what the ASN.1 compiler of Erlang/OTP writes of the types of SCVP, with the notation as the texts
%% of the RFCs have it. The tests read the rows, without Erlang. With erlang-asn1 25.2 and doc-rfc of Debian (or the
%% texts of the RFC Editor), the same rows come again of
%%
%%     escript scvp.escript /usr/share/doc/RFC/links >erlang.vec
-mode(compile).

%% RFC 5055 and what it imports, by the RFCs that came later where they have a module of that name.
modules() -> [{"5055", "SCVP"}, {"5280", "PKIX1Explicit88"}, {"5280", "PKIX1Implicit88"}, {"6960", "OCSP-2013-88"},
    {"3281", "PKIXAttributeCertificate"}, {"5652", "CryptographicMessageSyntax2004"},
    {"5652", "AttributeCertificateVersion1"}].

%% What the compiler cannot read: types that it has itself, a comma that a comment hides, and an old name of OCSP.
mends() -> [{"\n(UniversalString|BMPString|UTF8String) ::=[^\n]*", ""}, {"BMPString, UTF8String,", ""},
    {"AttCertVersion  --", "AttCertVersion, --"}, {"FROM OCSP\\b", "FROM OCSP-2013-88"}].

replace({From, To}, Text) -> re:replace(Text, From, To, [global, {return, binary}]).

extract(Texts, Dir, {Rfc, Module}) ->
    {ok, File} = file:open(hd(filelib:wildcard(Texts ++ "/rfc" ++ Rfc ++ ".txt*")), [read, binary, compressed]),
    {ok, Pages} = file:read(File, 1 bsl 24),
    Text = replace({"\n+[^\n]*\\[Page \\d+\\]\\s*\f\\s*RFC [^\n]*\n+", "\n\n"}, Pages),
    {match, [Notation]} = re:run(Text, "\n *" ++ Module ++ "\\s*({[^{}=]*})?\\s*DEFINITIONS.*?\n *END\\b",
        [dotall, {capture, first, binary}]),
    ok = file:write_file(Dir ++ "/" ++ Module ++ ".asn1", lists:foldl(fun replace/2, Notation, mends())).

main([Texts]) ->
    Dir = string:trim(os:cmd("mktemp -d")),
    [extract(Texts, Dir, Module) || Module <- modules()],
    [ok = asn1ct:compile(Dir ++ "/" ++ Name, [ber, der, maps, {i, Dir}, {outdir, Dir}]) || {_, Name} <- modules()],
    code:add_path(Dir),
    io:put_chars("# The types of SCVP, by the ASN.1 compiler of Erlang/OTP 25: see scvp.escript.\n\n"),
    rows(),
    file:del_dir_r(Dir).

%% Write the rows of a value, of the least and the whole SEQUENCE, and of the alternatives of a CHOICE.
row(Type, Name, Value) ->
    {ok, Der} = 'SCVP':encode(Type, Value),
    write(replace({"^(scvp)?", "scvp"}, string:lowercase(atom_to_list(Type))), Name, Der),
    Value.
both(Type, Least, More) -> [row(Type, "least", Least), row(Type, "all", maps:merge(Least, More))].
each(Type, Values) -> [row(Type, atom_to_list(Name), Value) || {Name, _} = Value <- Values].

%% Writes the row of a list whose type has no name: a value, or an element of it, with the tag of a SEQUENCE.
inner(Row, Type, Value, At) ->
    {ok, Der} = 'SCVP':encode(Type, Value),
    {{_, Elements} = Whole, <<>>} = asn1rt_nif:decode_ber_tlv(Der),
    {_, List} = lists:nth(At + 1, [Whole | Elements]),
    write(Row, "one", asn1rt_nif:encode_ber_tlv({16, List})).

write(Row, Name, Der) ->
    io:put_chars([Row, ": ", [io_lib:format("~2.16.0B ", [Octet]) || <<Octet>> <= Der], "| same | ", Name, "\n"]).

rows() ->
    Id = {1, 2, 3}, Sha256 = {2, 16, 840, 1, 101, 3, 4, 2, 1}, Null = <<5, 0>>, Octets = <<16#DEADBEEF:32>>,
    Pkix = fun(Arcs) -> list_to_tuple([1, 3, 6, 1, 5, 5, 7 | Arcs]) end, Check = Pkix([17, 3]), Want = Pkix([18, 1]),
    Time = "20260101000000Z", Later = "20260102000000Z", Sha1 = <<16#A9993E364706816ABA3E25717850C26C9CD0D89D:160>>,
    Alg = #{algorithm => Id, parameters => Null}, Extensions = [#{extnID => Id, critical => true, extnValue => Null}],
    Cn = {rdnSequence, [[#{type => {2, 5, 4, 3}, value => <<12, 1, "A">>}]]}, Names = [{directoryName, Cn}],
    Mail = {rfc822Name, "a@b"}, Signed = #{signatureAlgorithm => Alg, signature => <<5:3>>},
    Cert = Signed#{tbsCertificate => #{serialNumber => 1, signature => Alg, issuer => Cn, subject => Cn,
        validity => #{notBefore => {utcTime, "260101000000Z"}, notAfter => {generalTime, Time}},
        subjectPublicKeyInfo => #{algorithm => Alg, subjectPublicKey => <<4>>}}},
    Crl = Signed#{tbsCertList => #{signature => Alg, issuer => Cn, thisUpdate => {generalTime, Time}}},
    AttrCert = #{signatureAlgorithm => Alg, signatureValue => <<5:3>>, acinfo => #{version => v2, holder => #{},
        issuer => {v2Form, #{issuerName => Names}}, signature => Alg, serialNumber => 1, attributes => [],
        attrCertValidityPeriod => #{notBeforeTime => Time, notAfterTime => Later}}},
    Ocsp = #{responseStatus => successful, responseBytes => #{responseType => Id, response => Null}},
    Serial = row('SCVPIssuerSerial', "all", #{issuer => Names, serialNumber => 1}),
    [Id1, Id2] = both('SCVPCertID', #{certHash => Sha1, issuerSerial => Serial},
        #{certHash => Octets, hashAlgorithm => #{algorithm => Sha256}}),
    [Pkc, PkcRef] = each('PKCReference', [{cert, Cert}, {pkcRef, Id1}]),
    [_, AcRef] = each('ACReference', [{attrCert, AttrCert}, {acRef, Id2}]),
    [_, Cited] = each('CertReference', [{pkc, Pkc}, {ac, AcRef}]),
    [Pkcs, Acs] = each('CertReferences', [{pkcRefs, [PkcRef]}, {acRefs, [AcRef]}]),
    inner("scvppkcreferences", 'CertReferences', Pkcs, 0), inner("scvpacreferences", 'CertReferences', Acs, 0),
    Anchors = row('TrustAnchors', "two", [Pkc, PkcRef]),
    Checks = row('CertChecks', "one", [Check]), Wants = row('WantBack', "one", [Want]),
    [Ref, RefAll] = both('ValidationPolRef', #{valPolId => Pkix([19, 1])}, #{valPolId => Id, valPolParams => Null}),
    {ok, Parms} = 'SCVP':encode('NameValidationAlgParms', row('NameValidationAlgParms', "all",
        #{nameCompAlgId => Pkix([19, 4]), validationNames => Names})),
    [_, By] = both('ValidationAlg', #{valAlgId => Pkix([19, 3])}, #{valAlgId => Pkix([19, 2]), parameters => Parms}),
    Two = row('ResponseFlags', "two", #{fullRequestInResponse => true, responseValidationPolByRef => false}),
    [_, Flags] = both('ResponseFlags', #{}, Two#{protectResponse => false, cachedResponse => false}),
    Other = {other, row('OtherRevInfo', "all", #{riType => Id, riValue => Null})},
    each('RevocationInfo', [{crl, Crl}, {'delta-crl', Crl}, {ocsp, Ocsp}, Other]),
    Infos = row('RevocationInfos', "one", [Other]), Bundle = row('CertBundle', "one", [Cert]),
    row('CertBundles', "one", [Bundle]),
    [Least, Policy] = both('ValidationPolicy', #{validationPolRef => Ref}, #{validationPolRef => RefAll,
        validationAlg => By, userPolicySet => [{2, 5, 29, 32, 0}], inhibitPolicyMapping => false,
        requireExplicitPolicy => true, inhibitAnyPolicy => false, trustAnchors => Anchors,
        keyUsages => [[digitalSignature]], extendedKeyUsages => [Pkix([3, 1])], specifiedKeyUsages => []}),
    [inner(Row, 'ValidationPolicy', Policy, At) ||
        {Row, At} <- [{"scvpuserpolicyset", 3}, {"scvpkeyusages", 8}, {"scvpextendedkeyusages", 9}]],
    [Query, Asked] = both('Query', #{queriedCerts => Acs, checks => Checks, validationPolicy => Least},
        #{queriedCerts => Pkcs, wantBack => Wants, validationPolicy => Policy, responseFlags => Flags,
        serverContextInfo => Octets, validationTime => Time, intermediateCerts => Bundle, revInfos => Infos,
        producedAt => Later, queryExtensions => Extensions}),
    [Request, _] = both('CVRequest', #{query => Query}, #{cvRequestVersion => 2, query => Asked,
        requestorRef => Names, requestNonce => Octets, requestorName => hd(Names), responderName => Mail,
        requestExtensions => Extensions, signatureAlg => Alg, hashAlg => Sha256, requestorText => <<"x">>}),
    [Okay, Busy] = both('ResponseStatus', #{}, #{statusCode => tooBusy, errorMessage => <<"busy">>}),
    [Hash, _] = both('HashValue', #{value => Sha1}, #{algorithm => #{algorithm => Sha256}, value => Octets}),
    [Hashed, _] = each('RequestReference', [{requestHash, Hash}, {fullRequest, Request}]),
    [Passed, _] = both('ReplyCheck', #{check => Check}, #{status => 2}), Passes = row('ReplyChecks', "one", [Passed]),
    Back = row('ReplyWantBack', "all", #{wb => Want, value => Octets}), Backs = row('ReplyWantBacks', "one", [Back]),
    row('SCVPResponses', "one", [#{contentType => {1, 2, 840, 113549, 1, 7, 1}, content => <<4, 1, "a">>}]),
    [Valid, Bad] = both('CertReply', #{cert => Cited, replyValTime => Time, replyChecks => [], replyWantBacks => []},
        #{replyStatus => certPathNotValid, replyChecks => Passes, replyWantBacks => Backs, nextUpdate => Later,
        validationErrors => [Pkix([19, 3, 1])], certReplyExtensions => Extensions}),
    inner("scvpvalidationerrors", 'CertReply', Bad, 6), Replies = row('ReplyObjects', "two", [Valid, Bad]),
    both('CVResponse', #{responseStatus => Okay, cvResponseVersion => 1, serverConfigurationID => 7,
        producedAt => Time}, #{responseStatus => Busy, respValidationPolicy => Policy, requestRef => Hashed,
        requestorRef => Names, requestorName => [Mail], replyObjects => Replies, respNonce => Octets,
        serverContextInfo => Octets, cvResponseExtensions => Extensions, requestorText => <<"x">>}),
    both('ValPolRequest', #{requestNonce => Octets}, #{vpRequestVersion => 2}),
    [Key, _] = both('KeyAgreePublicKey', #{algorithm => #{algorithm => {1, 3, 101, 110}}, publicKey => Octets,
        macAlgorithm => #{algorithm => {1, 2, 840, 113549, 2, 9}}}, #{kDF => Alg}),
    [_, Known] = both('ValPolResponse', #{vpResponseVersion => 1, maxCVRequestVersion => 2, maxVPRequestVersion => 3,
        serverConfigurationID => 7, thisUpdate => Time, supportedChecks => Checks, supportedWantBacks => Wants,
        validationPolicies => [], validationAlgs => [], authPolicies => [], responseTypes => 'cached-only',
        defaultPolicyValues => Least, revocationInfoTypes => [oCSPResponses], signatureGeneration => [],
        signatureVerification => [], hashAlgorithms => [Sha256]},
        #{nextUpdate => Later, validationPolicies => [Check], validationAlgs => [Want], authPolicies => [{1, 2, 3}],
        responseTypes => 'non-cached-only', signatureGeneration => [#{algorithm => Sha256}],
        signatureVerification => [Alg], serverPublicKeys => [Key], clockSkew => 0, requestNonce => Octets}),
    [inner(Row, 'ValPolResponse', Known, At) || {Row, At} <-
        [{"scvpseqofoid", 11}, {"scvpseqofoidnoempty", 17}, {"scvpseqofalgoid", 15}, {"scvpkeyagreepublickeys", 18}]].

"""Values encoded by pyasn1 as its modules define their types: an independent encoder, and an independent reading of
the standards. Types that no module has are in tests/vectors.

The table: for each module, names of types of ours, and the classes that they are there. A * before the class stands
for SEQUENCE OF. Each makes a value with every component and one with the fewest, a CHOICE such values of each
alternative; a class with a - only the first, without what follows that.
"""

import importlib
import sys

sys.path.append("/usr/lib/python3/dist-packages")  # where Debian's package is, for other interpreters

TABLE = {
    "pyasn1.type.univ": "relative_oid=RelativeOID octetstrings=*OctetString",
    "pyasn1.type.char": """utf8string=UTF8String numericstring=NumericString printablestring=PrintableString
        teletexstring=TeletexString videotexstring=VideotexString ia5string=IA5String graphicstring=GraphicString
        visiblestring=VisibleString generalstring=GeneralString universalstring=UniversalString bmpstring=BMPString""",
    "rfc2251": "ldapresult=LDAPResult",
    "rfc2315": "signedandenvelopeddata=SignedAndEnvelopedData",
    "rfc2631": "dhkeyspecinfo=KeySpecificInfo dhotherinfo=OtherInfo",
    "rfc2985": "pkcs9string=PKCS9String",
    "rfc2986": "pkcs10certreqinfo=CertificationRequestInfo pkcs10certreq=CertificationRequest",
    "rfc3161": """tsp_messageimprint=MessageImprint tsp_timestampreq=TimeStampReq pkifreetext=PKIFreeText
        tsp_pkistatusinfo=PKIStatusInfo tsp_timestampresp=TimeStampResp tsp_accuracy=Accuracy tsp_tstinfo=TSTInfo""",
    "rfc3279": """dsssigvalue=Dss_Sig_Value ecdsasigvalue=ECDSA_Sig_Value dssparams=Dss_Parms
        ecpkparameters=EcpkParameters""",
    "rfc5035": """ess_issuerserial=IssuerSerial ess_certid=ESSCertID ess_certidv2=ESSCertIDv2
        ess_signingcertificate=SigningCertificate ess_signingcertificatev2=SigningCertificateV2
        contentreference=ContentReference contenthints=ContentHints""",
    "rfc5280": """pkixattrtypeval=AttributeTypeAndValue x500name=Name x509algorithmid=AlgorithmIdentifier
        x509validity=Validity x509publickeyinfo=SubjectPublicKeyInfo x509extensions=Extensions
        x509tbscertificate=TBSCertificate x509pubkeycert=Certificate x509tbscertlist=TBSCertList
        x509crl=CertificateList x500dirstring=DirectoryString x509edipartyname=EDIPartyName
        x509generalnames=GeneralNames x509akid=AuthorityKeyIdentifier x509exkeyusage=ExtKeyUsageSyntax
        x509privkeyusageperiod=PrivateKeyUsagePeriod x509certpolicies=CertificatePolicies displaytext=DisplayText
        pkixnoticeref=NoticeReference pkixusernotice=UserNotice x509policymappings=PolicyMappings
        x509subjectdirattrs=SubjectDirectoryAttributes x509basicconstraints=BasicConstraints
        x509generaltrees=GeneralSubtrees pkixnameconstaints=NameConstraints x509policyconstaints=PolicyConstraints
        x509dpname=DistributionPointName x509crldp=CRLDistributionPoints pkixaia=AuthorityInfoAccessSyntax
        pkixidp=IssuingDistributionPoint x509certificates=*Certificate scvpcertbundle=*Certificate
        x509crls=*CertificateList adobe_crls=*CertificateList""",
    "rfc5652": """pkcs7contentinfo=ContentInfo pkcs7digesteddata=DigestedData cmssignerid=SignerIdentifier
        cmssignerinfos=SignerInfos cmsalgos=DigestAlgorithmIdentifiers cmsothercertformat=OtherCertificateFormat
        cmsotherrevinfoformat=OtherRevocationInfoFormat cmssigneddata=SignedData
        cmsorgidorkey=OriginatorIdentifierOrKey cmsencryptedcontentinfo=EncryptedContentInfo
        cmsencrypteddata=EncryptedData cmsoriginatorinfo=OriginatorInfo
        cmskeyagreerecipientid=KeyAgreeRecipientIdentifier cmsrecipientinfo=RecipientInfo
        cmsenvelopeddata=EnvelopedData cmsauthdata=AuthenticatedData""",
    "rfc5751": "smimecapabilities=SMIMECapabilities smimeencryptionkeypreference=SMIMEEncryptionKeyPreference",
    "rfc5755": """attributecertificate=AttributeCertificate ac_target=Target ac_seqoftargets=ProxyInfo
        ac_ietfattrsyntax=IetfAttrSyntax ac_svceauthinfo=SvceAuthInfo ac_rolesyntax=RoleSyntax
        ac_clearance=Clearance-securityCategories ac_attrspec=AttrSpec acclearattrs=ACClearAttrs""",
    "rfc5915": "ecprivatekey=ECPrivateKey",
    "rfc5958": "pkcs8privatekeyinfo=OneAsymmetricKey pkcs8encprivatekeyinfo=EncryptedPrivateKeyInfo",
    "rfc6211": """cmsalgorithmprotection=CMSAlgorithmProtection-macAlgorithm
        cmsalgorithmprotection=CMSAlgorithmProtection-signatureAlgorithm""",
    "rfc6955": "dhsigstatic=DhSigStatic",
    "rfc6960": """ocsp_ocsprequest=OCSPRequest ocsp_ocspresponse=OCSPResponse ocsp_responderid=ResponderID
        ocsp_certstatus=CertStatus ocsp_basicocspresponse=BasicOCSPResponse ocsp_crlid=CrlID
        ocsp_servicelocator=ServiceLocator ocsp_preferredsignalgos=PreferredSignatureAlgorithms
        basicocspresponses=*BasicOCSPResponse adobe_ocspresponses=*OCSPResponse""",
    "rfc7292": """pkcs12pfx=PFX pkcs12safebags=SafeContents pkcs12certbag=CertBag pkcs12crlbag=CRLBag
        pkcs12secretbag=SecretBag pkcs12pbeparams=Pkcs_12PbeParams""",
    "rfc8017": """pkcs1rsapubkey=RSAPublicKey pkcs1otherprimeinfos=OtherPrimeInfos pkcsdigestinfo=DigestInfo
        pkcs1rsaesoaepprarams=RSAES_OAEP_params pkcs1rsassapssprarams=RSASSA_PSS_params""",
    "rfc8018": """pkcs5pbkdf2params=PBKDF2_params pkcs5pbeparam=PBEParameter pkcs5pbes2params=PBES2_params
        pkcs5pbmac1params=PBMAC1_params pkcs5rc2cbcparameter=RC2_CBC_Parameter
        pkcs5rc5cbcparameter=RC5_CBC_Parameters""",
}
# What primitive types are tried with, until it is neither their default nor outside of their constraints.
VALUES = {"Any": [b"\x0c\x01a"], "Null": [b""], "UTCTime": ["260101000000Z"], "GeneralizedTime": ["20600101000000Z"],
          "AbstractCharacterString": ["1" * 2, "1"], "OctetString": [b"a" * size for size in (2, 1, 4, 8, 64)],
          "Boolean": [True, False], "Integer": [5, 1, 0, 3, 16, 8, 64], "BitString": ["101"],
          "ObjectIdentifier": ["1.2.3"], "RelativeOID": ["8571.3"]}


def put(holder, place, kind, full, without, alternative=0):
    """Makes a component or element."""
    from pyasn1.error import PyAsn1Error
    names = [each.__name__ for each in type(kind).__mro__]
    if "ConstructedAsn1Type" in names:
        holder.setComponentByPosition(place)
        fill(holder[place], full, without, alternative)
        return
    for value in next(VALUES[name] for name in VALUES if name in names):
        try:
            if not kind.isValue or kind != value:
                holder.setComponentByPosition(place, value)
                return
        except PyAsn1Error:
            pass
    raise ValueError(f"no value for {names[0]}")


def fill(holder, full, without, alternative):
    if not hasattr(holder.componentType, "namedTypes"):
        for place in range(1 + full):
            put(holder, place, holder.componentType, full, without)
        return
    parts = list(enumerate(holder.componentType.namedTypes))
    for place, part in [parts[alternative]] if hasattr(holder, "getName") else parts:
        if not (part.isOptional or part.isDefaulted) or full and part.name != without:
            put(holder, place, part.asn1Object, full, without)


def kinds():
    """Name of the type, what it is for pyasn1, and the name of what is left out."""
    from pyasn1.type import univ
    for module, text in TABLE.items():
        classes = importlib.import_module(module if "." in module else f"pyasn1_modules.{module}")
        for name, words in (row.split("=") for row in text.split()):
            class_name, _, without = words.lstrip("*").partition("-")
            if hasattr(classes, class_name):  # is not older than the class
                kind = getattr(classes, class_name)()
                yield name, univ.SequenceOf(componentType=kind) if words[0] == "*" else kind, without


def made():
    """(name of the type, octets) of each value."""
    from pyasn1.codec.der import encoder
    from pyasn1.type import univ
    for name, kind, without in kinds():
        for alternative in range(len(kind.componentType) if hasattr(kind, "getName") else 1):
            for full in (True,) if without else (True, False):
                holder = univ.SequenceOf(componentType=kind)
                put(holder, 0, kind, full, without, alternative)
                yield name, encoder.encode(holder[0])

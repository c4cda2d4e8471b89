// Makes bouncycastle.vec: what Bouncy Castle writes of types that no tool of tests/corpus does. The tests read the
// rows, without a JDK. With libbcprov-java and libbcutil-java 1.72 of Debian, the same rows come again of
//
//     java -cp '/usr/share/java/*' BouncyCastle.java >bouncycastle.vec
import java.math.BigInteger;
import org.bouncycastle.asn1.*;
import org.bouncycastle.asn1.cms.*;
import org.bouncycastle.asn1.cms.Attribute;
import org.bouncycastle.asn1.cms.ecc.ECCCMSSharedInfo;
import org.bouncycastle.asn1.esf.*;
import org.bouncycastle.asn1.ess.*;
import org.bouncycastle.asn1.ocsp.*;
import org.bouncycastle.asn1.tsp.*;
import org.bouncycastle.asn1.x500.*;
import org.bouncycastle.asn1.x509.*;
import org.bouncycastle.asn1.x509.qualified.*;
import org.bouncycastle.util.encoders.Hex;

class BouncyCastle {
  static byte[] octets(String hex) { return Hex.decode(hex); }
  static DEROctetString string(String hex) { return new DEROctetString(octets(hex)); }
  static ASN1ObjectIdentifier oid(String dotted) { return new ASN1ObjectIdentifier(dotted); }
  static DERSequence list(ASN1Encodable... items) { return new DERSequence(items); }
  static DERSet set(ASN1Encodable... items) { return new DERSet(items); }
  static ASN1Encodable element(ASN1Object list, int at) { return ASN1Sequence.getInstance(list).getObjectAt(at); }

  // Writes the row of a value, and hands the value back.
  static <T extends ASN1Encodable> T row(String type, String name, T value) throws Exception {
    String hex = Hex.toHexString(value.toASN1Primitive().getEncoded("DER")).toUpperCase().replaceAll("..", "$0 ");
    System.out.println(type + ": " + hex + "| same | " + name);
    return value;
  }

  public static void main(String[] arguments) throws Exception {
    System.out.println("# Types that no tool of the corpus writes, by Bouncy Castle 1.72: see BouncyCastle.java.\n");
    var id = oid("1.2.3");
    var alg = new AlgorithmIdentifier(id, DERNull.INSTANCE);
    var sha256 = new AlgorithmIdentifier(oid("2.16.840.1.101.3.4.2.1"));
    var name = new X500Name("CN=A");
    var text = new DERUTF8String("x");
    var bits = new DERBitString(octets("A4"), 2);
    var one = new ASN1Integer(1);
    var time = new ASN1GeneralizedTime("20260101000000Z");
    var utc = row("utctime", "a time", new ASN1UTCTime("260101000000Z"));
    row("anylist", "two elements", list(text, id));
    row("anyset", "two elements", set(text, id));
    var key = new SubjectPublicKeyInfo(alg, octets("04"));
    var certificate = Certificate.getInstance(list(
        TBSCertificate.getInstance(list(one, alg, name, list(utc, time), name, key)), alg, bits));
    row("x500certpair", "both", new CertificatePair(certificate, certificate));
    row("x500certpair", "the reverse", new CertificatePair(null, certificate));
    row("ecccmssharedinfo", "all", new ECCCMSSharedInfo(sha256, octets("CAFE"), octets("00000100")));
    var face = row("typeofbiometricdata", "a number", new TypeOfBiometricData(0));
    var other = row("typeofbiometricdata", "a name", new TypeOfBiometricData(id));
    row("biometricdata", "all", new BiometricData(face, sha256, string("CAFE"), new DERIA5String("u:b")));
    row("biometricdata", "without a place", new BiometricData(other, sha256, string("CAFE")));

    var hash = row("otherhashalgandvalue", "a digest", new OtherHashAlgAndValue(sha256, string("DEAD")));
    var sha1Hash = row("otherhash", "of SHA-1", new OtherHash(octets("CAFE")));
    var otherHash = row("otherhash", "of another", new OtherHash(hash));
    var serial = new IssuerSerial(name, BigInteger.TEN);
    var certId = row("othercertid", "all", new OtherCertID(sha256, octets("DEAD"), serial));
    row("othercertids", "two", list(new OtherCertID(sha256, octets("CAFE")), certId));
    row("othersigningcert", "without policies", new OtherSigningCertificate(certId));
    SigPolicyQualifierInfo[] qualifiers = {
        new SigPolicyQualifierInfo(oid("1.2.840.113549.1.9.16.5.1"), new DERIA5String("u:p")),
        new SigPolicyQualifierInfo(oid("1.2.840.113549.1.9.16.5.2"), new SPUserNotice(null, new DisplayText("t")))};
    var policy = row("signaturepolicyid", "all", new SignaturePolicyId(id, hash, new SigPolicyQualifiers(qualifiers)));
    row("signaturepolicyidentifier", "a policy", new SignaturePolicyIdentifier(policy));
    row("signaturepolicyidentifier", "an implied policy", new SignaturePolicyIdentifier());
    row("commitmenttypeindication", "all", new CommitmentTypeIndication(
        id, list(new CommitmentTypeQualifier(id, text), new CommitmentTypeQualifier(id))));
    DirectoryString[] lines = {new DirectoryString("1"), new DirectoryString("2")};
    row("signerlocation", "all", new SignerLocation(new DirectoryString("XX"), new DirectoryString("l"), lines));

    var crl = row("crlidentifier", "all", new CrlIdentifier(name, utc, BigInteger.TEN));
    var crlHash = row("crlvalidatedid", "all", new CrlValidatedID(otherHash, crl));
    row("crlvalidatedids", "two", list(crlHash, new CrlValidatedID(sha1Hash)));
    var crls = row("crllistid", "one", new CrlListID(new CrlValidatedID[] {crlHash}));
    var ocsp = row("ocspidentifier", "by name", new OcspIdentifier(new ResponderID(name), time));
    var ocspHash = row("ocspresponsesid", "all", new OcspResponsesID(ocsp, sha1Hash));
    var keyed = new OcspResponsesID(new OcspIdentifier(new ResponderID(string("CAFE")), time));
    row("ocspresponsesids", "by name and key", list(ocspHash, keyed));
    var ocsps = row("ocsplistid", "by key", new OcspListID(new OcspResponsesID[] {keyed}));
    var refs = row("otherrevrefs", "a list", new OtherRevRefs(id, list(text)));
    var ref = row("crlocspref", "all", new CrlOcspRef(crls, ocsps, refs));
    row("crlocsprefs", "two", new CompleteRevocationRefs(new CrlOcspRef[] {new CrlOcspRef(null, ocsps, null), ref}));

    CertificateList[] lists = {CertificateList.getInstance(
        list(TBSCertList.getInstance(list(one, alg, name, utc, time)), alg, bits))};
    BasicOCSPResponse[] responses = {new BasicOCSPResponse(
        new ResponseData(new ResponderID(name), time, list(), (Extensions) null), alg, bits, null)};
    var values = row("otherrevvals", "a string", new OtherRevVals(id, text));
    row("revocationvalues", "all", new RevocationValues(lists, responses, values));
    var claim = org.bouncycastle.asn1.x509.Attribute.getInstance(list(id, set(text)));
    var body = AttributeCertificateInfo.getInstance(list(one, new Holder(serial), new AttCertIssuer(
        new V2Form(serial.getIssuer())), alg, one, list(time, time), list(claim), bits));
    var claimed = new SignerAttribute(new org.bouncycastle.asn1.x509.Attribute[] {claim, claim});
    var certified = new SignerAttribute(new AttributeCertificate(body, alg, bits));
    row("signerattributeitem", "claimed", element(row("signerattribute", "claimed", claimed), 0));
    row("signerattributeitem", "certified", element(row("signerattribute", "certified", certified), 0));

    Attribute[] two = {new Attribute(oid("1.2.4"), set(text)), new Attribute(id, set(text))};
    var infos = row("ers_attributes", "two", new CryptoInfos(two));
    var attributes = row("ers_attributeset", "two", Attributes.getInstance(set(two)));
    var encryption = row("ers_encryptioninfo", "a string", new EncryptionInfo(id, text));
    var tree = row("ers_partialhashtree", "two", new PartialHashtree(new byte[][] {octets("CA"), octets("FE")}));
    PartialHashtree[] trees = {tree, new PartialHashtree(octets("DEAD"))};
    row("ers_seqof_partialhashtree", "two", list(trees));
    var stamp = new ContentInfo(oid("1.2.840.113549.1.7.1"), string("07"));
    var renewal = new ArchiveTimeStamp(stamp);
    var first = row("archivetimestamp", "all", new ArchiveTimeStamp(sha256, attributes, trees, stamp));
    var chain = row("archivetimestampchain", "two", new ArchiveTimeStampChain(new ArchiveTimeStamp[] {first, renewal}));
    var chains = row("archivetimestampsequence", "two", new ArchiveTimeStampSequence(
        new ArchiveTimeStampChain[] {chain, new ArchiveTimeStampChain(renewal)}));
    AlgorithmIdentifier[] algorithms = {sha256, alg};
    row("evidencerecord", "all", new EvidenceRecord(algorithms, infos, encryption, chains));
    row("ers_algoids", "two", list(algorithms));
  }
}

package kxtest;

/** A session class whose token array is left unmade: the session id is set unchecked. */
public class BareSessionVariantTest extends VariantTable {
    public BareSessionVariantTest() {
        super("bare-session");
    }
}
